#pragma once

#include "platform/posix/UserAccount.h"
#include "platform/script/Shell.h"

#include <vector>

namespace corvellane {

/// Runs commands directly, with the rights of this process, for the given user. A command is over when its shell has
/// ended: what that left in the background keeps running, and its later output is not waited for.
class PosixShell : public Shell {
public:
    explicit PosixShell(const UserAccount& user);

    std::variant<CommandResult, ScriptError> run(const std::string& command) override;

private:
    std::vector<std::string> environment_;
};

} // namespace corvellane
