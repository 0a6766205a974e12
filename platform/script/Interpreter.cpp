#include "platform/script/Interpreter.h"

#include "platform/Progress.h"
#include "platform/StandardFolders.h"
#include "platform/script/FileManager.h"
#include "platform/script/Shell.h"
#include "platform/script/TokenStream.h"

#include <map>
#include <utility>

namespace corvellane::script {
namespace {

using Evaluation = Expected<Value>;
using Execution = Expected<Value, LocatedFailure>;

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

Evaluation valueOf(CommandResult result)
{
    if (result.status == 0) {
        return withoutLastLineEnd(std::move(result.output));
    }
    std::string message = withoutLastLineEnd(std::move(result.errors));
    if (message.empty()) {
        message = "The command exited with a non-zero status.";
    }
    return Unexpected({std::move(message), result.status});
}

Expected<std::string> textOf(const Value& value)
{
    if (auto text = asText(value)) {
        return *std::move(text);
    }
    return Unexpected({"Can’t make the value into type text.", error_number::cannotConvert});
}

class Interpreter {
public:
    Interpreter(const Host& host, const std::vector<std::string>& privilegedCommands)
        : host_(host)
        , privilegedCommands_(privilegedCommands)
    {
    }

    /// Gives the value of the last statement that ran: an error and `return` end a block.
    Execution run(const Block& block)
    {
        Execution execution;
        for (const Statement& statement : block) {
            execution = std::visit([&](const auto& form) { return execute(form, statement.range); }, statement.form);
            if (!execution || isReturning_) {
                break;
            }
        }
        return execution;
    }

private:
    Execution evaluateAt(SourceRange range, const Expression& expression)
    {
        return evaluate(expression).map_error([&](Failure&& failure) {
            return LocatedFailure{std::move(failure), range};
        });
    }

    Execution execute(const ExpressionStatement& statement, SourceRange range)
    {
        return evaluateAt(range, statement.expression);
    }

    Execution execute(const ReturnStatement& statement, SourceRange range)
    {
        Execution execution = statement.value ? evaluateAt(range, *statement.value) : Execution();
        isReturning_ = execution.has_value();
        return execution;
    }

    Execution execute(const SetStatement& statement, SourceRange range)
    {
        Execution execution = evaluateAt(range, statement.value);
        if (execution) {
            variables_[statement.variable.name] = *execution;
        }
        return execution;
    }

    Execution execute(const TryStatement& statement, SourceRange)
    {
        Execution execution = run(statement.body);
        if (execution) {
            return execution;
        }
        if (statement.errorMessage) {
            variables_[statement.errorMessage->name] = execution.error().failure.message;
        }
        return run(statement.errorBranch);
    }

    Execution execute(const TellStatement& statement, SourceRange range)
    {
        const std::string& name = statement.application;
        if (inSmallLetters(name) != "finder") {
            return tl::unexpected(
                LocatedFailure{{"Can’t get application \"" + name + "\".", error_number::cannotGetObject}, range});
        }
        if (!host_.fileManager->acceptsRequests()) {
            return tl::unexpected(
                LocatedFailure{{"Not authorized to send Apple events to Finder.", error_number::notAuthorized}, range});
        }
        return run(statement.body);
    }

    Evaluation evaluate(const Expression& expression)
    {
        return std::visit([&](const auto& form) { return evaluateForm(form); }, expression.form);
    }

    Evaluation evaluateForm(const TextLiteral& literal) { return literal.text; }

    Evaluation evaluateForm(const IntegerLiteral& literal) { return literal.value; }

    Evaluation evaluateForm(const VariableReference& variable)
    {
        const auto found = variables_.find(variable.name);
        if (found == variables_.end()) {
            return Unexpected({"The variable " + variable.name + " is not defined.", error_number::undefinedVariable});
        }
        return found->second;
    }

    Evaluation evaluateForm(const PathToApplicationSupport&)
    {
        const auto paths = host_.folders->searchPaths(SearchDirectory::applicationSupport, SearchDomain::local);
        return paths.empty() ? std::string() : paths.front();
    }

    Evaluation evaluateForm(const Concatenation& concatenation)
    {
        std::string text;
        for (const Expression& operand : concatenation.operands) {
            const auto part = evaluate(operand).and_then(textOf);
            if (!part) {
                return tl::unexpected(part.error());
            }
            text += *part;
        }
        return text;
    }

    Evaluation evaluateForm(const ShellCommand& command)
    {
        const auto text = evaluate(*command.command).and_then(textOf);
        if (!text) {
            return tl::unexpected(text.error());
        }
        if (text->find('\0') != std::string::npos) {
            return Unexpected({"The command cannot be run because it contains a NUL.", error_number::cannotConvert});
        }
        if (!command.privileged) {
            return host_.shell->run(*text).and_then(valueOf);
        }
        return administratorShell().and_then([&](Shell* shell) {
            host_.progress->start(*command.privileged);
            return shell->run(*text).and_then(valueOf);
        });
    }

    Expected<Shell*> administratorShell()
    {
        if (administratorShell_ == nullptr) {
            auto shell = host_.prompt->authorize(privilegedCommands_);
            if (!shell) {
                return tl::unexpected(std::move(shell.error()));
            }
            administratorShell_ = *std::move(shell);
        }
        return administratorShell_.get();
    }

    const Host& host_;
    const std::vector<std::string>& privilegedCommands_;
    std::map<std::string, Value> variables_;
    std::shared_ptr<Shell> administratorShell_;
    bool isReturning_ = false;
};

} // namespace

std::optional<std::string> asText(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*integer);
    }
    return std::nullopt;
}

Expected<Value, LocatedFailure> run(const SyntaxTree& script, const Host& host)
{
    host.progress->begin(script.privilegedCommands);
    Execution execution = Interpreter(host, script.privilegedCommands).run(script.statements);
    host.progress->end();
    return execution;
}

} // namespace corvellane::script
