#pragma once

#include "helper/Execution.h"
#include "platform/script/Shell.h"

#include <string>

namespace corvellane {

/// Asks nobody, because this process is root's: starts the command runner for the person at the screen, who may have
/// become root by sudo.
class RootPrompt : public script::AdministratorPrompt {
public:
    /// `runner` is the path of the command runner, `products` the folder that its commands copy from, without a "/" at
    /// the end, or empty.
    RootPrompt(std::string runner, std::string products)
        : runner_(std::move(runner))
        , products_(std::move(products))
    {
    }

    Expected<std::shared_ptr<script::Shell>> authorize(const std::vector<std::string>& commands) override;

private:
    std::string runner_;
    std::string products_;
};

} // namespace corvellane
