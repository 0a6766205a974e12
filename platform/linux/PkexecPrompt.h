#pragma once

#include "platform/script/Shell.h"

#include <optional>
#include <string>
#include <vector>

namespace corvellane {

/// Asks through polkit: pkexec starts the command runner once, and all commands of a script go through it. No password
/// passes through this process. What would keep the commands from being carried out is said before anybody is asked.
///
/// Blocks for as long as the person takes. A declined window is `script::error_number::userCanceled`; where there are
/// no rights to be had it is `script::error_number::notPermitted`; a runner that cannot be started, and what would keep
/// the commands from being carried out, is `script::error_number::eventFailed`, with a message that tells a person what
/// to do.
class PkexecPrompt : public script::AdministratorPrompt {
public:
    /// `runner` is the path of the command runner, `products` the folder that its commands copy from, without a "/" at
    /// the end, or empty. Nothing is asked when anybody but root could have changed them, or could still change them
    /// while the window waits.
    PkexecPrompt(std::string runner, std::string products,
        script::PasswordAsked where = script::PasswordAsked::onDesktop, std::string pkexec = "/usr/bin/pkexec");

    Expected<std::shared_ptr<script::Shell>> authorize(const std::vector<std::string>& commands) override;

private:
    std::optional<Failure> whyNotAsked(const std::vector<std::string>& commands) const;

    std::string runner_;
    std::string products_;
    script::PasswordAsked where_;
    std::string pkexec_;
};

} // namespace corvellane
