#pragma once

#include "base/Expected.h"

#include <memory>
#include <string>

namespace corvellane::script {

/// What a shell command left behind. Of each stream at most the first 1 MiB is kept.
struct CommandResult {
    /// The exit status, 0 to 255; 128 and the signal's number when a signal ended the shell.
    int status = 0;
    std::string output;
    std::string errors;
};

/// Runs shell commands, one at a time. Scripts write them for the BSD tools; where the tools are others, it is the
/// shell that makes the command mean the same.
class Shell {
public:
    virtual ~Shell() = default;

    /// Hands `command` to `/bin/sh -c` and returns when that has ended. Standard input is empty, the working directory
    /// "/", the environment nothing but PATH, LC_ALL and the USER, LOGNAME and HOME of the user at the screen; signals
    /// have their default dispositions. A failure means that the shell could not be run at all.
    virtual Expected<CommandResult> run(const std::string& command) = 0;
};

/// Asks the person at the screen for administrator rights.
class AdministratorPrompt {
public:
    virtual ~AdministratorPrompt() = default;

    /// A shell whose commands run with administrator rights, for one run of one script; or why there is none. A
    /// person who declines is `error_number::userCanceled`.
    virtual Expected<std::shared_ptr<Shell>> authorize() = 0;
};

} // namespace corvellane::script
