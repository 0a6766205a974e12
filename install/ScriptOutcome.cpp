#include "install/ScriptOutcome.h"

namespace corvellane {

std::optional<std::string> resultText(const ScriptExecution& execution)
{
    return execution.result ? execution.result->text : std::nullopt;
}

ScriptOutcome outcomeOf(const std::string& resultText)
{
    if (resultText == "User canceled.") {
        return ScriptOutcome::canceled;
    }
    return resultText == "Ok" ? ScriptOutcome::succeeded : ScriptOutcome::failed;
}

} // namespace corvellane
