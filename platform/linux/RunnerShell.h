#pragma once

#include "platform/posix/ChildProcess.h"
#include "platform/posix/FileDescriptor.h"
#include "platform/script/Shell.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <sys/types.h>

namespace corvellane {

/// Has commands of an installation carried out by a command runner in another process, which ends with this object.
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

/// Says what it means that the program by which a runner is started has ended instead, with this exit status and these
/// words on its standard error.
using ExplainEnd = std::function<Failure(int status, const std::string& complaint)>;

/// The words that start a runner for these commands. A removal copies nothing, so it is not told of the products.
std::vector<std::string> runnerWords(
    const std::string& runner, const std::string& products, const std::vector<std::string>& commands);

/// Starts a runner and waits until it is up.
Expected<std::shared_ptr<script::Shell>> startRunner(const Invocation& invocation, const ExplainEnd& explain);

/// `reason` may be empty, and may end as programs end what they print.
Failure runnerCannotStart(std::string reason);

} // namespace corvellane
