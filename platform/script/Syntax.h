#pragma once

#include "platform/script/ErrorInformation.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace corvellane::script {

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
    /// Its place among the script's commands with administrator privileges; absent for one without.
    std::optional<std::size_t> privileged;
};

struct PathToApplicationSupport { };

struct Expression {
    std::variant<TextLiteral, IntegerLiteral, VariableReference, Concatenation, ShellCommand, PathToApplicationSupport>
        form;
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

using StatementForm = std::variant<ReturnStatement, SetStatement, ExpressionStatement, TryStatement, TellStatement>;

struct Statement {
    StatementForm form;
    SourceRange range;
};

/// A compiled script.
struct SyntaxTree {
    Block statements;
    /// The texts of the commands with administrator privileges, in the order of the script, error branches
    /// included; empty for one that is more than a literal.
    std::vector<std::string> privilegedCommands;
};

} // namespace corvellane::script
