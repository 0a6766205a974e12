#pragma once

#include "base/Expected.h"

#include <memory>
#include <string>
#include <vector>

namespace corvellane::script {

/// What a command left behind. Of each stream at most 1 MiB is kept: its beginning, its end, and between them a line
/// that says how much is missing.
struct CommandResult {
    /// The exit status, 0 to 255; 128 and the signal's number when a signal ended it.
    int status = 0;
    std::string output;
    std::string errors;
};

/// Runs commands as scripts write them for a shell and the BSD tools, one at a time; where the tools are others, it
/// makes the command mean the same.
class Shell {
public:
    virtual ~Shell() = default;

    /// Hands `command` to `/bin/sh -c` and returns when that has ended. Standard input is empty, the working directory
    /// "/", the environment nothing but PATH, LC_ALL and the USER, LOGNAME and HOME of the user at the screen; signals
    /// have their default dispositions. A failure means that the shell could not be run at all.
    virtual Expected<CommandResult> run(const std::string& command) = 0;
};

/// Where a prompt may ask for a password.
enum class PasswordAsked {
    /// In a window of the desktop's own.
    onDesktop,
    /// There or, where there is no desktop, on the terminal that the program was started from.
    onTerminalToo,
};

/// Asks the person at the screen for administrator rights.
class AdministratorPrompt {
public:
    virtual ~AdministratorPrompt() = default;

    /// A shell whose commands run with administrator rights, for one run of one script; or why there is none. A
    /// person who declines is `error_number::userCanceled`. `commands` is all that the script may have run with them,
    /// in its order, so that what cannot succeed is told before anybody is asked; empty for a command that is known
    /// only when it runs.
    virtual Expected<std::shared_ptr<Shell>> authorize(const std::vector<std::string>& commands) = 0;
};

} // namespace corvellane::script
