#pragma once

#include "platform/ScriptService.h"

#include <string>

namespace corvellane {

/// The script service of the system that has one of its own: hands a script to its `osascript` command on standard
/// input. By that command's manual page, a result is written to standard output with one line feed behind it; an error
/// has the exit status 1 and, on standard error, "START:END: execution error: MESSAGE (NUMBER)". Of each stream at most
/// the first 1 MiB is kept. The command may end before it has read a whole script: needs `setUpProcess`.
class OsascriptService : public ScriptService {
public:
    explicit OsascriptService(std::string command = "/usr/bin/osascript")
        : command_(std::move(command))
    {
    }

    std::unique_ptr<Script> create(std::string source) override;

private:
    std::string command_;
};

} // namespace corvellane
