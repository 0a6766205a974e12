#include "platform/script/Interpreter.h"

#include "platform/StandardFolders.h"
#include "platform/script/FileManager.h"
#include "platform/script/Shell.h"
#include "platform/script/ShellDialect.h"
#include "platform/script/TokenStream.h"

#include <map>
#include <utility>

namespace corvellane {
namespace {

using Evaluation = std::variant<ScriptValue, ScriptError>;

/// How a statement or a block ended: with a value, which goes on to the next statement, with a returned value,
/// or with an error.
struct Returned {
    ScriptValue value;
};
using Completion = std::variant<ScriptValue, Returned, UncaughtError>;

std::string withoutLastLineEnd(std::string text)
{
    if (text.ends_with('\n')) {
        text.pop_back();
        if (text.ends_with('\r')) {
            text.pop_back();
        }
    }
    return text;
}

Evaluation evaluationOf(CommandResult result)
{
    if (result.status == 0) {
        return ScriptValue(withoutLastLineEnd(std::move(result.output)));
    }
    std::string message = withoutLastLineEnd(std::move(result.errors));
    if (message.empty()) {
        message = "The command exited with a non-zero status.";
    }
    return ScriptError{std::move(message), result.status};
}

class Interpreter {
public:
    explicit Interpreter(const ScriptHost& host)
        : host_(host)
    {
    }

    Completion run(const Block& block)
    {
        Completion completion;
        for (const Statement& statement : block) {
            completion = std::visit([&](const auto& form) { return execute(form, statement.range); }, statement.form);
            if (!std::holds_alternative<ScriptValue>(completion)) {
                break;
            }
        }
        return completion;
    }

private:
    /// Hands the expression's value to `use`, or gives the error of the statement at `range`.
    template <typename Use>
    Completion withValue(const Expression& expression, SourceRange range, Use use)
    {
        Evaluation evaluation = evaluate(expression);
        if (auto* error = std::get_if<ScriptError>(&evaluation)) {
            return UncaughtError{std::move(*error), range};
        }
        return use(std::get<ScriptValue>(std::move(evaluation)));
    }

    Completion execute(const ExpressionStatement& statement, SourceRange range)
    {
        return withValue(statement.expression, range, [](ScriptValue value) { return value; });
    }

    Completion execute(const ReturnStatement& statement, SourceRange range)
    {
        if (!statement.value) {
            return Returned{};
        }
        return withValue(*statement.value, range, [](ScriptValue value) { return Returned{std::move(value)}; });
    }

    Completion execute(const SetStatement& statement, SourceRange range)
    {
        return withValue(statement.value, range,
            [&](ScriptValue value) { return variables_[statement.variable.name] = std::move(value); });
    }

    Completion execute(const TryStatement& statement, SourceRange)
    {
        Completion completion = run(statement.body);
        const auto* error = std::get_if<UncaughtError>(&completion);
        if (error == nullptr) {
            return completion;
        }
        if (statement.errorMessage) {
            variables_[statement.errorMessage->name] = error->error.message;
        }
        return run(statement.errorBranch);
    }

    Completion execute(const TellStatement& statement, SourceRange range)
    {
        const std::string& name = statement.application;
        if (inSmallLetters(name) != "finder") {
            return UncaughtError{{"Can’t get application \"" + name + "\".", script_error::cannotGetObject}, range};
        }
        if (!host_.fileManager.acceptsRequests()) {
            return UncaughtError{
                {"Not authorized to send Apple events to Finder.", script_error::notAuthorized}, range};
        }
        return run(statement.body);
    }

    Evaluation evaluate(const Expression& expression)
    {
        return std::visit([&](const auto& form) { return evaluateForm(form); }, expression.form);
    }

    Evaluation evaluateForm(const TextLiteral& literal) { return ScriptValue(literal.text); }

    Evaluation evaluateForm(const IntegerLiteral& literal) { return ScriptValue(literal.value); }

    Evaluation evaluateForm(const VariableReference& variable)
    {
        const auto found = variables_.find(variable.name);
        if (found == variables_.end()) {
            return ScriptError{"The variable " + variable.name + " is not defined.", script_error::undefinedVariable};
        }
        return found->second;
    }

    Evaluation evaluateForm(const PathToApplicationSupport&)
    {
        const auto paths = host_.folders.searchPaths(SearchDirectory::applicationSupport, SearchDomain::local);
        return ScriptValue(paths.empty() ? std::string() : paths.front());
    }

    Evaluation evaluateForm(const Concatenation& concatenation)
    {
        std::string text;
        for (const Expression& operand : concatenation.operands) {
            auto part = evaluateText(operand);
            if (auto* error = std::get_if<ScriptError>(&part)) {
                return std::move(*error);
            }
            text += std::get<std::string>(part);
        }
        return ScriptValue(std::move(text));
    }

    Evaluation evaluateForm(const ShellCommand& command)
    {
        auto text = evaluateText(*command.command);
        if (auto* error = std::get_if<ScriptError>(&text)) {
            return std::move(*error);
        }
        auto shell = shellFor(command);
        if (auto* error = std::get_if<ScriptError>(&shell)) {
            return std::move(*error);
        }
        auto result = std::get<Shell*>(shell)->run(inBsdDialect(std::get<std::string>(text)));
        if (auto* error = std::get_if<ScriptError>(&result)) {
            return std::move(*error);
        }
        return evaluationOf(std::get<CommandResult>(std::move(result)));
    }

    std::variant<std::string, ScriptError> evaluateText(const Expression& expression)
    {
        Evaluation evaluation = evaluate(expression);
        if (auto* error = std::get_if<ScriptError>(&evaluation)) {
            return std::move(*error);
        }
        if (auto text = asText(std::get<ScriptValue>(evaluation))) {
            return *std::move(text);
        }
        return ScriptError{"Can’t make the value into type text.", script_error::cannotConvert};
    }

    std::variant<Shell*, ScriptError> shellFor(const ShellCommand& command)
    {
        if (!command.withAdministratorPrivileges) {
            return &host_.shell;
        }
        if (administratorShell_ == nullptr) {
            auto authorization = host_.prompt.authorize();
            if (auto* error = std::get_if<ScriptError>(&authorization)) {
                return std::move(*error);
            }
            administratorShell_ = std::get<std::unique_ptr<Shell>>(std::move(authorization));
        }
        return administratorShell_.get();
    }

    const ScriptHost& host_;
    std::map<std::string, ScriptValue> variables_;
    std::unique_ptr<Shell> administratorShell_;
};

} // namespace

std::optional<std::string> asText(const ScriptValue& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*integer);
    }
    return std::nullopt;
}

std::variant<ScriptValue, UncaughtError> runScript(const SyntaxTree& script, const ScriptHost& host)
{
    Completion completion = Interpreter(host).run(script.statements);
    if (auto* error = std::get_if<UncaughtError>(&completion)) {
        return std::move(*error);
    }
    if (auto* returned = std::get_if<Returned>(&completion)) {
        return std::move(returned->value);
    }
    return std::get<ScriptValue>(std::move(completion));
}

} // namespace corvellane
