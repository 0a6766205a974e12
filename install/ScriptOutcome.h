#pragma once

#include "platform/ScriptService.h"

#include <optional>
#include <string>

namespace corvellane {

/// What an installation's script has come to.
struct ScriptOutcome {
    enum class Ending {
        /// There is no result text to go by.
        unknown,
        /// The person at the screen declined.
        canceled,
        succeeded,
        failed,
    };

    /// The description of the error information, when there is some: the installation has failed, whatever the ending.
    std::optional<std::string> errorDescription;
    Ending ending = Ending::unknown;
    /// The result text of the endings `succeeded` and `failed`.
    std::string resultText;
};

/// Decided by the whole result text: "Ok", "User canceled." or, for anything else, the failure's message.
ScriptOutcome outcomeOf(ScriptExecution execution);

} // namespace corvellane
