#include "platform/posix/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace corvellane {
namespace {

class SpawnSettings {
public:
    SpawnSettings(const StandardStreams& streams, SpawnExtension extension)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_adddup2(&actions_, streams.input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, streams.output, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, streams.errors, STDERR_FILENO);
        if (extension != nullptr) {
            extension(actions_);
        }
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
    }
    ~SpawnSettings()
    {
        posix_spawnattr_destroy(&attributes_);
        posix_spawn_file_actions_destroy(&actions_);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    const posix_spawn_file_actions_t* actions() const { return &actions_; }
    const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

/// What the system takes as a list of texts; the texts must outlive it. The system does not write to them.
std::vector<char*> asPointers(const std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (const std::string& text : texts) {
        pointers.push_back(const_cast<char*>(text.c_str()));
    }
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

Pipe makePipe()
{
    std::array<int, 2> ends{-1, -1};
    if (pipe(ends.data()) == 0) {
        std::ranges::for_each(ends, [](int end) { fcntl(end, F_SETFD, FD_CLOEXEC); });
    }
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

Expected<pid_t> startChild(const Invocation& invocation, const StandardStreams& streams, SpawnExtension extension)
{
    const SpawnSettings settings(streams, extension);
    pid_t child = -1;
    const bool haveStreams = std::min({streams.input, streams.output, streams.errors}) >= 0;
    const int error = !haveStreams
        ? EBADF
        : posix_spawn(&child, invocation.words.front().c_str(), settings.actions(), settings.attributes(),
              asPointers(invocation.words).data(), asPointers(invocation.environment).data());
    if (error != 0) {
        return Unexpected({std::strerror(error), error});
    }
    return child;
}

int exitStatusOf(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return statusUnknown;
        }
    }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

void drain(FileDescriptor& stream, std::string& kept)
{
    std::array<char, 65536> buffer;
    pollfd event{stream.get(), POLLIN, 0};
    for (int reads = 0; stream.isOpen() && reads < 16 && poll(&event, 1, 0) > 0; ++reads) {
        const ssize_t count = read(stream.get(), buffer.data(), buffer.size());
        if (count > 0) {
            kept.append(buffer.data(), std::min(static_cast<std::size_t>(count), mostKeptOfAStream - kept.size()));
        } else if (count == 0 || errno != EINTR) {
            stream.close();
        }
    }
}

} // namespace corvellane
