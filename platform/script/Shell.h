#pragma once

#include "platform/script/ErrorInformation.h"

#include <memory>
#include <string>
#include <variant>

namespace corvellane {

/// What a shell command left behind. Of each stream at most the first 1 MiB is kept.
struct CommandResult {
    /// The exit status, 0 to 255; 128 and the signal's number when a signal ended the shell.
    int status = 0;
    std::string output;
    std::string errors;
};

/// Runs shell commands, one at a time.
class Shell {
public:
    virtual ~Shell() = default;

    /// Hands `command` to `/bin/sh -c` and returns when that has ended. Standard input is empty, the working directory
    /// "/", the environment nothing but PATH, LC_ALL and the USER, LOGNAME and HOME of the user at the screen; signals
    /// have their default dispositions. An error means that the shell could not be run at all.
    virtual std::variant<CommandResult, ScriptError> run(const std::string& command) = 0;
};

/// Asks the person at the screen for administrator rights.
class AdministratorPrompt {
public:
    virtual ~AdministratorPrompt() = default;

    /// A shell whose commands run with administrator rights, for one run of one script; or why there is none. A
    /// person who declines is `script_error::userCanceled`.
    virtual std::variant<std::unique_ptr<Shell>, ScriptError> authorize() = 0;
};

} // namespace corvellane
