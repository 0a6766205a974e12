#pragma once

#include "platform/posix/UserAccount.h"
#include "platform/script/Shell.h"

#include <string>
#include <utility>

namespace corvellane {

/// Asks nobody, because this process is root's: starts the command runner for a person.
class RootPrompt : public script::AdministratorPrompt {
public:
    /// `runner` is the path of the command runner, `products` the folder that its commands copy from, without a "/" at
    /// the end, or empty.
    RootPrompt(std::string runner, std::string products, UserAccount person)
        : runner_(std::move(runner))
        , products_(std::move(products))
        , person_(std::move(person))
    {
    }

    Expected<std::shared_ptr<script::Shell>> authorize(const std::vector<std::string>& commands) override;

private:
    std::string runner_;
    std::string products_;
    UserAccount person_;
};

} // namespace corvellane
