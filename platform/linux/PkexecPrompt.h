#pragma once

#include "platform/script/Shell.h"

#include <optional>
#include <string>

namespace corvellane {

/// Asks through polkit, with the desktop's own window for the password: pkexec starts the command runner once, and all
/// commands of a script go through it. No password passes through this process.
///
/// Blocks for as long as the person takes. A declined window is `script::error_number::userCanceled`; anything else
/// that keeps the runner from starting is `script::error_number::notPermitted`, with a message that tells a person what
/// to do.
class PkexecPrompt : public script::AdministratorPrompt {
public:
    /// `runner` is the path of the command runner, `products` the folder that its commands copy from. Nothing is asked
    /// when anybody but root could have changed them, or could still change them while the window waits.
    explicit PkexecPrompt(
        std::string runner, std::optional<std::string> products = {}, std::string pkexec = "/usr/bin/pkexec")
        : runner_(std::move(runner))
        , products_(std::move(products))
        , pkexec_(std::move(pkexec))
    {
    }

    Expected<std::shared_ptr<script::Shell>> authorize() override;

private:
    std::string runner_;
    std::optional<std::string> products_;
    std::string pkexec_;
};

} // namespace corvellane
