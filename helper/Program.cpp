#include "helper/Program.h"

#include "helper/Excerpt.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace corvellane::runner {
namespace {

/// A pipe from a program's stream.
class Stream {
public:
    Stream() { isOpen_ = pipe2(ends_.data(), O_CLOEXEC) == 0; }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;
    ~Stream()
    {
        closeEnd(ends_[0]);
        closeEnd(ends_[1]);
    }

    bool isOpen() const { return isOpen_; }
    pollfd waiting() const { return {ends_[0], POLLIN, 0}; }
    int writeEnd() const { return ends_[1]; }
    void closeWriteEnd() { closeEnd(ends_[1]); }

    /// Takes what is there, a pipeful at most; at the stream's end there is nothing more to look for.
    void drain(short events)
    {
        std::array<char, 65536> buffer;
        const ssize_t count = events == 0 ? 0 : read(ends_[0], buffer.data(), buffer.size());
        if (count > 0) {
            kept_.add({buffer.data(), static_cast<std::size_t>(count)});
        } else if (events != 0 && (count == 0 || errno != EINTR)) {
            closeEnd(ends_[0]);
        }
    }

    /// Behind what the program has written.
    void add(std::string_view words) { kept_.add(words); }

    std::string text() { return std::move(kept_).text(); }

private:
    static void closeEnd(int& end)
    {
        if (end >= 0) {
            close(std::exchange(end, -1));
        }
    }

    std::array<int, 2> ends_{-1, -1};
    bool isOpen_ = false;
    Excerpt kept_;
};

/// How a program starts.
class Start {
public:
    Start(const Stream& output, const Stream& errors)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions_, output.writeEnd(), STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, errors.writeEnd(), STDERR_FILENO);
        posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
        posix_spawn_file_actions_addchdir_np(&actions_, "/");
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;
    ~Start()
    {
        posix_spawnattr_destroy(&attributes_);
        posix_spawn_file_actions_destroy(&actions_);
    }

    int spawn(pid_t& program, const std::string& path, const std::vector<std::string>& words,
        const std::vector<std::string>& environment) const
    {
        return posix_spawn(
            &program, path.c_str(), &actions_, &attributes_, asPointers(words).data(), asPointers(environment).data());
    }

private:
    /// The system takes them so, and does not write to them.
    static std::vector<char*> asPointers(const std::vector<std::string>& texts)
    {
        std::vector<char*> pointers;
        pointers.reserve(texts.size() + 1);
        for (const std::string& text : texts) {
            pointers.push_back(const_cast<char*>(text.c_str()));
        }
        pointers.push_back(nullptr);
        return pointers;
    }

    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

/// Reads both streams until the program has ended or, where that cannot be told, both streams have.
void collect(pid_t program, Stream& output, Stream& errors)
{
    // The C library's header declares pidfd_open() without C linkage.
    const auto ended = static_cast<int>(syscall(SYS_pidfd_open, program, 0));
    const auto isOpen = [](const pollfd& event) { return event.fd >= 0; };
    for (bool running = true, looks = true; looks;) {
        std::array<pollfd, 3> events{output.waiting(), errors.waiting(), {ended, POLLIN, 0}};
        looks = running && std::ranges::any_of(events, isOpen);
        // Once more after the end, for what was written just before it.
        poll(events.data(), events.size(), looks ? -1 : 0);
        running = events[2].revents == 0;
        output.drain(events[0].revents);
        errors.drain(events[1].revents);
    }
    close(ended);
}

std::string describeSignal(std::string_view command, int signal)
{
    const char* const name = sigabbrev_np(signal);
    const std::string known = name == nullptr ? std::to_string(signal) : "SIG" + std::string(name);
    return "The command was ended by the signal " + known + ": " + std::string(command) + "\n";
}

} // namespace

Reply cannotRun(const char* reason)
{
    return {couldNotRun, {}, "The command could not be run: " + std::string(reason) + ".\n"};
}

Reply runProgram(const std::string& path, const std::vector<std::string>& words,
    const std::vector<std::string>& environment, std::string_view command)
{
    Stream output;
    Stream errors;
    if (!output.isOpen() || !errors.isOpen()) {
        return cannotRun(std::strerror(errno));
    }
    pid_t program = -1;
    if (const int error = Start(output, errors).spawn(program, path, words, environment); error != 0) {
        return cannotRun(std::strerror(error));
    }
    output.closeWriteEnd();
    errors.closeWriteEnd();
    collect(program, output, errors);
    int status = 0;
    const bool isKnown = waitpid(program, &status, 0) == program;
    if (isKnown && WIFSIGNALED(status)) {
        errors.add(describeSignal(command, WTERMSIG(status)));
        return {128 + WTERMSIG(status), output.text(), errors.text()};
    }
    return {isKnown ? WEXITSTATUS(status) : couldNotRun, output.text(), errors.text()};
}

} // namespace corvellane::runner
