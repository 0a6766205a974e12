#include "platform/script/InterpretedScriptService.h"

#include "platform/script/Parser.h"

#include <utility>

namespace corvellane::script {
namespace {

class InterpretedScript : public Script {
public:
    InterpretedScript(Host host, std::string source)
        : host_(std::move(host))
        , source_(std::move(source))
    {
    }

    ScriptExecution execute() override
    {
        const auto run
            = parse(source_).and_then([this](const SyntaxTree& script) { return script::run(script, host_); });
        if (!run) {
            return {std::nullopt, describeError(run.error())};
        }
        return {ScriptExecution::Value{asText(*run)}, std::nullopt};
    }

private:
    Host host_;
    std::string source_;
};

} // namespace

std::unique_ptr<Script> InterpretedScriptService::create(std::string source)
{
    return std::make_unique<InterpretedScript>(host_, std::move(source));
}

} // namespace corvellane::script
