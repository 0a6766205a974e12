#pragma once

#include "platform/script/Shell.h"

#include <string>

namespace corvellane {

/// Asks through polkit, with the desktop's own window for the password: pkexec starts the command runner once, and all
/// commands of a script go through it. No password passes through this process.
///
/// Blocks for as long as the person takes. A declined window is `script_error::userCanceled`; anything else that keeps
/// the runner from starting is `script_error::notPermitted`, with a message that tells a person what to do.
class PkexecPrompt : public AdministratorPrompt {
public:
    /// `runner` is the path of the command runner. Nothing is started that anybody but root could have changed, or
    /// could still change while the window waits.
    explicit PkexecPrompt(std::string runner, std::string pkexec = "/usr/bin/pkexec")
        : runner_(std::move(runner))
        , pkexec_(std::move(pkexec))
    {
    }

    std::variant<std::unique_ptr<Shell>, ScriptError> authorize() override;

private:
    std::string runner_;
    std::string pkexec_;
};

} // namespace corvellane
