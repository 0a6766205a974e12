#pragma once

#include "platform/ScriptService.h"

#include <optional>
#include <string>

namespace corvellane {

/// What an installation's script has come to.
enum class ScriptOutcome {
    /// The person at the screen declined.
    canceled,
    succeeded,
    failed,
};

/// Absent when there is no result, or it has no text.
std::optional<std::string> resultText(const ScriptExecution& execution);

/// Decided by the whole result text: "Ok", "User canceled." or, for anything else, the failure's message.
ScriptOutcome outcomeOf(const std::string& resultText);

} // namespace corvellane
