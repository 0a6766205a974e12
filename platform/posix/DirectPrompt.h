#pragma once

#include "platform/posix/PosixShell.h"

#include <unistd.h>

namespace corvellane {

/// Asks nobody: commands that want administrator rights run with the rights this process has. That is what root
/// wants, and what a rehearsal wants, which installs into folders of the user's own; anybody else is refused.
class DirectPrompt : public AdministratorPrompt {
public:
    enum class Use { install, rehearsal };

    DirectPrompt(UserAccount user, Use use)
        : user_(std::move(user))
        , use_(use)
    {
    }

    std::variant<std::unique_ptr<Shell>, ScriptError> authorize() override
    {
        if (use_ != Use::rehearsal && geteuid() != 0) {
            return ScriptError{
                "Administrator rights are needed to run this command, and this program has no way to ask for them.",
                script_error::notPermitted};
        }
        return std::make_unique<PosixShell>(user_);
    }

private:
    UserAccount user_;
    Use use_;
};

} // namespace corvellane
