// Runs shell commands with administrator rights for the installer, which starts this program through pkexec, once for
// a script, and ends it by closing its standard input.
//
// It says "corvellane-command-runner 1\n" when it is up. A request is one command: its length in bytes as four bytes,
// the highest first, then the command, at most 1 MiB without NUL. A reply is the exit status (four bytes), then what
// the command wrote to standard output and to standard error, each as length and bytes, at most 1 MiB. A command is
// over when its shell has ended, whatever that left in the background. A request that breaks these rules ends the
// program; nothing is read from anywhere else and no file is written.
//
// This file stands alone, so that everything that runs as root can be read in one sitting.

#include <fcntl.h>
#include <poll.h>
#include <pwd.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view upMessage = "corvellane-command-runner 1\n";
constexpr std::size_t longestCommand = std::size_t{1} << 20U;
constexpr std::size_t mostKept = std::size_t{1} << 20U;
constexpr int couldNotRun = 127;

bool writeAll(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return true;
}

bool readAll(char* bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t count = read(STDIN_FILENO, bytes, size);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return false;
        }
        const auto taken = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        bytes += taken;
        size -= taken;
    }
    return true;
}

std::string asFourBytes(std::uint32_t number)
{
    return {static_cast<char>(number >> 24U), static_cast<char>(number >> 16U), static_cast<char>(number >> 8U),
        static_cast<char>(number)};
}

bool writeText(const std::string& text)
{
    return writeAll(asFourBytes(static_cast<std::uint32_t>(text.size()))) && writeAll(text);
}

/// Absent at the end of the input and for a request that breaks the rules.
std::optional<std::string> readCommand()
{
    std::array<unsigned char, 4> header{};
    if (!readAll(reinterpret_cast<char*>(header.data()), header.size())) {
        return std::nullopt;
    }
    std::size_t length = 0;
    for (const unsigned char byte : header) {
        length = length << 8U | byte;
    }
    if (length > longestCommand) {
        return std::nullopt;
    }
    std::string command(length, '\0');
    if (!readAll(command.data(), length) || command.find('\0') != std::string::npos) {
        return std::nullopt;
    }
    return command;
}

struct Stream {
    int readEnd = -1;
    int writeEnd = -1;
    std::string kept;

    bool open()
    {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0) {
            return false;
        }
        readEnd = ends[0];
        writeEnd = ends[1];
        // Only what is written to becomes memory; growing step by step would copy.
        kept.reserve(mostKept);
        return fcntl(readEnd, F_SETFL, O_NONBLOCK) == 0;
    }

    void closeEnd(int& end)
    {
        if (end >= 0) {
            close(end);
        }
        end = -1;
    }

    void closeBoth()
    {
        closeEnd(readEnd);
        closeEnd(writeEnd);
    }

    /// Reads what is there, a few pipefuls at most.
    void drain()
    {
        static std::array<char, 65536> buffer;
        for (int reads = 0; readEnd >= 0 && reads < 16; ++reads) {
            const ssize_t count = read(readEnd, buffer.data(), buffer.size());
            if (count > 0) {
                kept.append(buffer.data(), std::min(static_cast<std::size_t>(count), mostKept - kept.size()));
            } else if (count < 0 && errno == EAGAIN) {
                return;
            } else if (count == 0 || errno != EINTR) {
                closeEnd(readEnd);
            }
        }
    }
};

/// Starts the shell with default signals and an empty standard input; an error number when that fails.
int startShell(std::string& command, const Stream& output, const Stream& errors, pid_t& process)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output.writeEnd, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors.writeEnd, STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    std::array<char, 8> shell{"/bin/sh"};
    std::array<char, 3> option{"-c"};
    std::array<char*, 4> arguments{shell.data(), option.data(), command.data(), nullptr};
    const int error = posix_spawn(&process, shell.data(), &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

int waitFor(pid_t process, Stream& output, Stream& errors)
{
    const auto ended = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
    bool running = true;
    while (running && (ended >= 0 || output.readEnd >= 0 || errors.readEnd >= 0)) {
        std::array<pollfd, 3> events{{{output.readEnd, POLLIN, 0}, {errors.readEnd, POLLIN, 0}, {ended, POLLIN, 0}}};
        poll(events.data(), events.size(), -1);
        running = (events[2].revents & POLLIN) == 0;
        output.drain();
        errors.drain();
    }
    if (ended >= 0) {
        close(ended);
    }
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) { }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

bool answer(std::string& command)
{
    Stream output;
    Stream errors;
    int status = couldNotRun;
    pid_t process = -1;
    const int error = output.open() && errors.open() ? startShell(command, output, errors, process) : errno;
    output.closeEnd(output.writeEnd);
    errors.closeEnd(errors.writeEnd);
    if (error == 0) {
        status = waitFor(process, output, errors);
    } else {
        errors.kept = std::string("The command could not be run: ") + std::strerror(error) + ".\n";
    }
    output.closeBoth();
    errors.closeBoth();
    return writeAll(asFourBytes(static_cast<std::uint32_t>(status))) && writeText(output.kept)
        && writeText(errors.kept);
}

/// The user who was asked, by the number that pkexec passes on.
const passwd* askingUser()
{
    const char* text = std::getenv("PKEXEC_UID");
    uid_t number = 0;
    const char* end = text == nullptr ? nullptr : text + std::strlen(text);
    if (text == nullptr || text == end || std::from_chars(text, end, number).ptr != end) {
        return nullptr;
    }
    return getpwuid(number);
}

/// pkexec says that the user is root; the commands are to know who the person is.
void rebuildEnvironment(const passwd& user)
{
    const std::string name = user.pw_name;
    const std::string home = user.pw_dir;
    clearenv();
    setenv("PATH", "/usr/bin:/bin:/usr/sbin:/sbin", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("USER", name.c_str(), 1);
    setenv("LOGNAME", name.c_str(), 1);
    setenv("HOME", home.c_str(), 1);
}

/// Nothing of the installer's is left to this process but its standard streams; signals of a terminal or of a session
/// that ends do not interrupt an installation.
void standAlone()
{
    syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0);
    setsid();
    umask(S_IWGRP | S_IWOTH);
    if (chdir("/") != 0) {
        std::abort();
    }
    for (const int number : {SIGPIPE, SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGTSTP}) {
        std::signal(number, SIG_IGN);
    }
}

} // namespace

int main()
{
    standAlone();
    const passwd* user = askingUser();
    if (user == nullptr) {
        std::fputs("corvellane-command-runner: started by nobody known; it is started by pkexec only\n", stderr);
        return 2;
    }
    rebuildEnvironment(*user);
    if (!writeAll(upMessage)) {
        return 1;
    }
    for (auto command = readCommand(); command; command = readCommand()) {
        if (!answer(*command)) {
            return 1;
        }
    }
    return 0;
}
