#pragma once

#include "platform/posix/UserAccount.h"
#include "platform/script/Shell.h"

#include <string>
#include <vector>

namespace corvellane {

/// Runs commands directly, with the rights of this process, for the given user. A command is over when its shell has
/// ended: what that left in the background keeps running, and its later output is not waited for.
class LinuxShell : public script::Shell {
public:
    explicit LinuxShell(const UserAccount& user);

    Expected<script::CommandResult> run(const std::string& command) override;

private:
    std::vector<std::string> environment_;
};

} // namespace corvellane
