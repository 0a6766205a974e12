#include "platform/osascript/OsascriptService.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <string_view>
#include <utility>

extern char** environ; // NOLINT(readability-redundant-declaration): not every system's headers have it

namespace corvellane {
namespace {

/// One of the child's standard streams, nothing but POSIX.1-2008.
class Stream {
public:
    Stream()
    {
        if (pipe(ends_.data()) == 0) {
            std::for_each(ends_.begin(), ends_.end(), [](int end) { fcntl(end, F_SETFD, FD_CLOEXEC); });
        }
    }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;
    ~Stream() { std::for_each(ends_.begin(), ends_.end(), &closeEnd); }

    int readEnd() const { return ends_[0]; }
    int writeEnd() const { return ends_[1]; }
    void closeReadEnd() { closeEnd(std::exchange(ends_[0], -1)); }
    void closeWriteEnd() { closeEnd(std::exchange(ends_[1], -1)); }

private:
    static void closeEnd(int end)
    {
        if (end >= 0) {
            close(end);
        }
    }

    std::array<int, 2> ends_{-1, -1};
};

struct Run {
    Stream input;
    Stream output;
    Stream errors;
    std::string outputText;
    std::string errorText;
};

bool start(const std::string& command, Run& run, pid_t& process)
{
    if (std::min({run.input.readEnd(), run.output.readEnd(), run.errors.readEnd()}) < 0) {
        return false;
    }
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, run.input.readEnd(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, run.output.writeEnd(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, run.errors.writeEnd(), STDERR_FILENO);
    std::string program = command;
    std::string fromInput = "-";
    std::array<char*, 3> arguments{program.data(), fromInput.data(), nullptr};
    const int error = posix_spawn(&process, command.c_str(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    run.input.closeReadEnd();
    run.output.closeWriteEnd();
    run.errors.closeWriteEnd();
    return error == 0;
}

void feed(Stream& stream, std::string_view& rest)
{
    const ssize_t count = write(stream.writeEnd(), rest.data(), std::min<std::size_t>(rest.size(), PIPE_BUF));
    rest.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (rest.empty() || (count < 0 && errno != EINTR)) {
        stream.closeWriteEnd();
    }
}

void take(Stream& stream, std::string& text)
{
    std::array<char, 4096> buffer;
    const ssize_t count = read(stream.readEnd(), buffer.data(), buffer.size());
    text.append(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count == 0 || (count < 0 && errno != EINTR)) {
        stream.closeReadEnd();
    }
}

void converse(Run& run, std::string_view source)
{
    while (run.output.readEnd() >= 0 || run.errors.readEnd() >= 0) {
        std::array<pollfd, 3> events{
            {{run.input.writeEnd(), POLLOUT, 0}, {run.output.readEnd(), POLLIN, 0}, {run.errors.readEnd(), POLLIN, 0}}};
        poll(events.data(), events.size(), -1);
        if (events[0].revents != 0) {
            feed(run.input, source);
        }
        if (events[1].revents != 0) {
            take(run.output, run.outputText);
        }
        if (events[2].revents != 0) {
            take(run.errors, run.errorText);
        }
    }
}

bool succeeded(pid_t process)
{
    int status = 0;
    pid_t ended = -1;
    do {
        ended = waitpid(process, &status, 0);
    } while (ended < 0 && errno == EINTR);
    return ended == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string withoutLastLineFeed(std::string text)
{
    if (text.ends_with('\n')) {
        text.pop_back();
    }
    return text;
}

class OsascriptScript : public Script {
public:
    OsascriptScript(std::string command, std::string source)
        : command_(std::move(command))
        , source_(std::move(source))
    {
    }

    ScriptExecution execute() override
    {
        // A command that ends before it has read the whole script must not end this program.
        std::signal(SIGPIPE, SIG_IGN);
        Run run;
        pid_t process = -1;
        if (!start(command_, run, process)) {
            return {std::nullopt, command_ + " could not be started"};
        }
        converse(run, source_);
        if (!succeeded(process)) {
            return {std::nullopt, withoutLastLineFeed(std::move(run.errorText))};
        }
        if (run.outputText.empty()) {
            return {ScriptExecution::Value{}, std::nullopt};
        }
        return {ScriptExecution::Value{withoutLastLineFeed(std::move(run.outputText))}, std::nullopt};
    }

private:
    std::string command_;
    std::string source_;
};

} // namespace

std::unique_ptr<Script> OsascriptService::create(std::string source)
{
    return std::make_unique<OsascriptScript>(command_, std::move(source));
}

} // namespace corvellane
