#pragma once

#include "platform/script/Lexer.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace corvellane {

struct Expression;
struct Statement;

/// Statements in the order they run in.
using Block = std::vector<Statement>;

struct TextLiteral {
    /// Unescaped.
    std::string text;
};

struct IntegerLiteral {
    std::int64_t value;
};

struct VariableReference {
    /// In small letters: names do not distinguish capitals.
    std::string name;
};

/// `A & B & …`, at least two operands.
struct Concatenation {
    std::vector<Expression> operands;
};

struct ShellCommand {
    std::unique_ptr<Expression> command;
    bool withAdministratorPrivileges;
};

struct PathToApplicationSupport { };

using ExpressionForm = std::variant<TextLiteral, IntegerLiteral, VariableReference, Concatenation, ShellCommand,
    PathToApplicationSupport>;

struct Expression {
    ExpressionForm form;
    SourceRange range;
};

struct ReturnStatement {
    std::optional<Expression> value;
};

struct SetStatement {
    VariableReference variable;
    Expression value;
};

struct ExpressionStatement {
    Expression expression;
};

struct TryStatement {
    Block body;
    /// Absent when the error branch does not name the message.
    std::optional<VariableReference> errorMessage;
    Block errorBranch;
};

struct TellStatement {
    std::string application;
    Block body;
};

struct Statement {
    std::variant<ReturnStatement, SetStatement, ExpressionStatement, TryStatement, TellStatement> form;
    SourceRange range;
};

/// A compiled script.
struct SyntaxTree {
    Block statements;
};

} // namespace corvellane
