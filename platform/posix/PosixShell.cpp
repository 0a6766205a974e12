#include "platform/posix/PosixShell.h"

#include "platform/posix/FileDescriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <vector>

namespace corvellane {
namespace {

constexpr std::size_t mostKept = std::size_t{1} << 20U;

struct Pipe {
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

/// The read end does not block, so that a stream can be emptied without waiting for its end.
Pipe makePipe()
{
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) == 0) {
        fcntl(ends[0], F_SETFL, O_NONBLOCK);
    }
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

/// How the shell is started: its streams, its folder, nothing else inherited.
class SpawnSettings {
public:
    SpawnSettings(int output, int errors)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, errors, STDERR_FILENO);
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

/// Reads what the stream holds now, and closes it at its end. At most a few times what a pipe holds is read, so that a
/// process left in the background that never stops writing holds up nobody.
void drain(FileDescriptor& stream, std::string& kept)
{
    std::array<char, 65536> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    for (int reads = 0; stream.isOpen() && reads < 16; ++reads) {
        const ssize_t count = read(stream.get(), buffer.data(), buffer.size());
        if (count > 0) {
            kept.append(buffer.data(), std::min(static_cast<std::size_t>(count), mostKept - kept.size()));
        } else if (count < 0 && errno == EAGAIN) {
            return;
        } else if (count == 0 || errno != EINTR) {
            stream.close();
        }
    }
}

/// Returns when the process has ended or, where that cannot be told, when both streams have.
void drainUntilEnd(pid_t process, Pipe& output, Pipe& errors, CommandResult& result)
{
    // The C library's header declares pidfd_open() without C linkage.
    const FileDescriptor ended(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    bool running = true;
    while (running && (ended.isOpen() || output.readEnd.isOpen() || errors.readEnd.isOpen())) {
        std::array<pollfd, 3> events{
            {{output.readEnd.get(), POLLIN, 0}, {errors.readEnd.get(), POLLIN, 0}, {ended.get(), POLLIN, 0}}};
        poll(events.data(), events.size(), -1);
        running = (events[2].revents & POLLIN) == 0;
        drain(output.readEnd, result.output);
        drain(errors.readEnd, result.errors);
    }
}

int exitStatusOf(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) { }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

ScriptError cannotRun(int error)
{
    return {"The command could not be run: " + std::string(std::strerror(error)) + ".", error};
}

} // namespace

PosixShell::PosixShell(const UserAccount& user)
    : environment_{"PATH=/usr/bin:/bin:/usr/sbin:/sbin", "LC_ALL=C.UTF-8", "USER=" + user.name, "LOGNAME=" + user.name,
        "HOME=" + user.home}
{
}

std::variant<CommandResult, ScriptError> PosixShell::run(const std::string& command)
{
    Pipe output = makePipe();
    Pipe errors = makePipe();
    if (!output.readEnd.isOpen() || !errors.readEnd.isOpen()) {
        return cannotRun(errno);
    }
    const SpawnSettings settings(output.writeEnd.get(), errors.writeEnd.get());
    std::array<std::string, 3> words{"/bin/sh", "-c", command};
    std::array<char*, 4> arguments{words[0].data(), words[1].data(), words[2].data(), nullptr};
    std::vector<char*> environment;
    for (std::string& variable : environment_) {
        environment.push_back(variable.data());
    }
    environment.push_back(nullptr);
    pid_t process = -1;
    if (const int error = posix_spawn(
            &process, "/bin/sh", settings.actions(), settings.attributes(), arguments.data(), environment.data())) {
        return cannotRun(error);
    }
    output.writeEnd.close();
    errors.writeEnd.close();
    CommandResult result;
    drainUntilEnd(process, output, errors, result);
    result.status = exitStatusOf(process);
    return result;
}

} // namespace corvellane
