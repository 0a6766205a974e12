#pragma once

#include "helper/InstallFolders.h"
#include "platform/script/Shell.h"

#include <utility>

namespace corvellane {

/// Asks nobody: the commands of an installation are carried out as the command runner does it, but by this process,
/// with the rights that it has, into folders of the present user's own.
class RehearsalPrompt : public script::AdministratorPrompt {
public:
    explicit RehearsalPrompt(runner::InstallFolders folders)
        : folders_(std::move(folders))
    {
    }

    Expected<std::shared_ptr<script::Shell>> authorize(const std::vector<std::string>& commands) override;

private:
    runner::InstallFolders folders_;
};

} // namespace corvellane
