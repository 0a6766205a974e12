#include "install/ScriptOutcome.h"

#include <utility>

namespace corvellane {
namespace {

ScriptOutcome::Ending endingOf(const std::string& resultText)
{
    if (resultText == "User canceled.") {
        return ScriptOutcome::Ending::canceled;
    }
    return resultText == "Ok" ? ScriptOutcome::Ending::succeeded : ScriptOutcome::Ending::failed;
}

} // namespace

ScriptOutcome outcomeOf(ScriptExecution execution)
{
    ScriptOutcome outcome;
    outcome.errorDescription = std::move(execution.errorDescription);
    if (execution.result && execution.result->text) {
        outcome.resultText = *std::move(execution.result->text);
        outcome.ending = endingOf(outcome.resultText);
    }
    return outcome;
}

} // namespace corvellane
