#pragma once

#include "platform/posix/FileDescriptor.h"
#include "platform/script/Shell.h"

#include <sys/types.h>

namespace corvellane {

/// Has commands run by a command runner in another process, which ends with this object.
class RunnerShell : public script::Shell {
public:
    /// `channel` is the connection to the runner with the process id `runner`, a child of this process.
    RunnerShell(FileDescriptor channel, pid_t runner)
        : channel_(std::move(channel))
        , runner_(runner)
    {
    }
    RunnerShell(const RunnerShell&) = delete;
    RunnerShell& operator=(const RunnerShell&) = delete;
    ~RunnerShell() override;

    Expected<script::CommandResult> run(const std::string& command) override;

private:
    FileDescriptor channel_;
    pid_t runner_;
};

/// Whether the runner at the other end of the channel says that it is up; waits until it does or ends.
bool runnerComesUp(const FileDescriptor& channel);

} // namespace corvellane
