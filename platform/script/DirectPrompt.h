#pragma once

#include "platform/script/Shell.h"

#include <utility>

namespace corvellane::script {

/// Asks nobody: commands that want administrator rights run as all others do, with the rights of this process. That is
/// what root wants, and what a rehearsal wants, which installs into folders of the user's own.
class DirectPrompt : public AdministratorPrompt {
public:
    explicit DirectPrompt(std::shared_ptr<Shell> shell)
        : shell_(std::move(shell))
    {
    }

    Expected<std::shared_ptr<Shell>> authorize() override { return shell_; }

private:
    std::shared_ptr<Shell> shell_;
};

} // namespace corvellane::script
