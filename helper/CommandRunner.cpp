// Runs shell commands with administrator rights for the installer, which starts this program through pkexec, once for
// a script, and ends it by closing its standard input.
//
// What the two say to each other stands in RunnerMessages.h. A command is over when its shell has ended, whatever that
// left in the background. A request that breaks the rules ends the program; nothing is read from anywhere else and no
// file is written. In the home of the user who was asked, no command follows a link: what is meant for a folder there
// cannot be led to another.
//
// This file and that one stand alone, so that everything that runs as root can be read in one sitting.

#include "helper/RunnerMessages.h"

#include <fcntl.h>
#include <poll.h>
#include <pwd.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

using corvellane::runner::Reply;

constexpr std::size_t mostKept = corvellane::runner::longestText;
constexpr int couldNotRun = 127;

bool readInput(char* bytes, std::size_t size)
{
    return std::fread(bytes, 1, size, stdin) == size;
}

void writeOutput(std::string_view bytes)
{
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

/// Becomes the shell, with default signals and an empty standard input.
[[noreturn]] void becomeShell(const std::string& command, int output, int errors)
{
    for (int number = 1; number < NSIG; ++number) {
        std::signal(number, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (dup2(nothing, STDIN_FILENO) >= 0 && dup2(output, STDOUT_FILENO) >= 0 && dup2(errors, STDERR_FILENO) >= 0) {
        execl("/bin/sh", "/bin/sh", "-c", command.c_str(), nullptr);
    }
    dprintf(errors, "The command could not be run: %s.\n", std::strerror(errno));
    _exit(couldNotRun);
}

/// Keeps what is there, a pipeful at most; at the stream's end there is nothing more to look for.
void drain(pollfd& stream, std::string& kept)
{
    static std::array<char, 65536> buffer;
    if (stream.revents == 0) {
        return;
    }
    const ssize_t count = read(stream.fd, buffer.data(), buffer.size());
    if (count > 0) {
        kept.append(buffer.data(), std::min(static_cast<std::size_t>(count), mostKept - kept.size()));
    } else {
        stream.fd = -1;
    }
}

/// Reads both streams until the shell has ended; what that leaves in the background is not waited for.
void collect(pid_t shell, int output, int errors, Reply& reply)
{
    const auto ended = static_cast<int>(syscall(SYS_pidfd_open, shell, 0));
    std::array<pollfd, 3> events{{{output, POLLIN, 0}, {errors, POLLIN, 0}, {ended, POLLIN, 0}}};
    const auto isOpen = [](const pollfd& event) { return event.fd >= 0; };
    // Once more after the end, for what was written just before it.
    for (bool running = true; running && std::ranges::any_of(events, isOpen);) {
        running = events[2].revents == 0;
        poll(events.data(), events.size(), running ? -1 : 0);
        drain(events[0], reply.output);
        drain(events[1], reply.errors);
    }
    close(ended);
    int status = 0;
    if (waitpid(shell, &status, 0) == shell) {
        reply.status = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    }
}

Reply run(const std::string& command)
{
    Reply reply{couldNotRun, {}, {}};
    // Only what is written to becomes memory; growing step by step would copy.
    reply.output.reserve(mostKept);
    reply.errors.reserve(mostKept);
    std::array<int, 2> output{-1, -1};
    std::array<int, 2> errors{-1, -1};
    const bool isPiped = pipe2(output.data(), O_CLOEXEC) == 0 && pipe2(errors.data(), O_CLOEXEC) == 0;
    const pid_t shell = isPiped ? fork() : -1;
    if (shell == 0) {
        becomeShell(command, output[1], errors[1]);
    }
    if (shell < 0) {
        reply.errors = std::string("The command could not be run: ") + std::strerror(errno) + ".\n";
    }
    close(output[1]);
    close(errors[1]);
    if (shell > 0) {
        collect(shell, output[0], errors[0], reply);
    }
    close(output[0]);
    close(errors[0]);
    return reply;
}

/// The user who was asked, by the number that pkexec passes on.
const passwd* askingUser()
{
    const char* number = std::getenv("PKEXEC_UID");
    const char* end = number + (number == nullptr ? 0 : std::strlen(number));
    uid_t user = 0;
    const auto [stop, error] = std::from_chars(number, end, user);
    return number != end && stop == end && error == std::errc() ? getpwuid(user) : nullptr;
}

/// pkexec says that the user is root; the commands are to know who the person is.
void rebuildEnvironment(const passwd& user)
{
    clearenv();
    setenv("PATH", "/usr/bin:/bin:/usr/sbin:/sbin", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("USER", user.pw_name, 1);
    setenv("LOGNAME", user.pw_name, 1);
    setenv("HOME", user.pw_dir, 1);
}

/// Has this process and its children follow no link below the user's home: what root writes into a folder there, or
/// hands to the user, must not be what a link in its place points to. Without support by the kernel (before Linux
/// 5.14) the links are followed.
void followNoLinksInTheHomeOf(const passwd& user)
{
    struct stat home{};
    if (user.pw_uid == 0 || stat(user.pw_dir, &home) != 0 || home.st_uid != user.pw_uid) {
        return;
    }
    mount_attr attributes{};
    attributes.attr_set = MOUNT_ATTR_NOSYMFOLLOW;
    if (unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_SLAVE, nullptr) == 0
        && mount(user.pw_dir, user.pw_dir, nullptr, MS_REC | MS_BIND, nullptr) == 0) {
        mount_setattr(AT_FDCWD, user.pw_dir, AT_RECURSIVE, &attributes, sizeof attributes);
    }
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
    std::signal(SIGCHLD, SIG_DFL);
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
    followNoLinksInTheHomeOf(*user);
    writeOutput(corvellane::runner::up);
    while (std::fflush(stdout) == 0) {
        const auto command = corvellane::runner::readRequest(readInput);
        if (!command) {
            return 0;
        }
        corvellane::runner::writeReply(run(*command), writeOutput);
    }
    return 1;
}
