#include "platform/script/InterpretedScriptService.h"

#include "platform/script/Parser.h"

#include <utility>

namespace corvellane {
namespace {

class InterpretedScript : public Script {
public:
    InterpretedScript(const ScriptHost& host, std::string source)
        : host_(host)
        , source_(std::move(source))
    {
    }

    ScriptExecution execute() override
    {
        const auto compiled = parseScript(source_);
        if (const auto* error = std::get_if<SyntaxError>(&compiled)) {
            return {std::nullopt, describeError(error->error, error->range)};
        }
        const auto run = runScript(std::get<SyntaxTree>(compiled), host_);
        if (const auto* error = std::get_if<UncaughtError>(&run)) {
            return {std::nullopt, describeError(error->error, error->range)};
        }
        return {ScriptExecution::Value{asText(std::get<ScriptValue>(run))}, std::nullopt};
    }

private:
    ScriptHost host_;
    std::string source_;
};

} // namespace

std::unique_ptr<Script> InterpretedScriptService::create(std::string source)
{
    return std::make_unique<InterpretedScript>(host_, std::move(source));
}

} // namespace corvellane
