#pragma once

#include "platform/posix/PosixShell.h"

namespace corvellane {

/// Asks nobody: commands that want administrator rights run with the rights this process has. That is what root
/// wants, and what a rehearsal wants, which installs into folders of the user's own.
class DirectPrompt : public AdministratorPrompt {
public:
    explicit DirectPrompt(UserAccount user)
        : user_(std::move(user))
    {
    }

    std::variant<std::unique_ptr<Shell>, ScriptError> authorize() override
    {
        return std::make_unique<PosixShell>(user_);
    }

private:
    UserAccount user_;
};

} // namespace corvellane
