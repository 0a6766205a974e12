#include "platform/posix/PkexecPrompt.h"

#include "platform/posix/ChildProcess.h"
#include "platform/posix/RunnerShell.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string_view>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

/// What pkexec exits with when it has started nothing.
constexpr int declined = 126;
constexpr int notAuthorized = 127;

ScriptError refusal(std::string message)
{
    return {std::move(message), script_error::notPermitted};
}

/// Whether only root can change what the path names: neither the file nor any folder above it is anybody else's,
/// and nobody else may write to them. In a folder with the sticky bit nobody can replace what is root's.
bool isRootsAlone(const fs::path& path)
{
    struct stat status { };
    if (stat(path.c_str(), &status) != 0 || status.st_uid != 0) {
        return false;
    }
    const bool othersMayWrite = (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
    const bool isSticky = S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0;
    return (!othersMayWrite || isSticky) && (path == path.root_path() || isRootsAlone(path.parent_path()));
}

bool isSystemBusRunning()
{
    const FileDescriptor connection(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    constexpr std::string_view path = "/run/dbus/system_bus_socket";
    path.copy(address.sun_path, path.size());
    return connect(connection.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

/// `complaint` only chooses the words: pkexec gives a refused password and a missing agent the same status.
ScriptError explainRefusal(int status, const std::string& complaint)
{
    if (status == declined) {
        return {"User canceled.", script_error::userCanceled};
    }
    if (status != notAuthorized) {
        return refusal("The program that runs commands with administrator rights could not be started. " + complaint);
    }
    if (!isSystemBusRunning()) {
        return refusal("There is no way to ask for an administrator’s password, because the system’s message bus is "
                       "not running. Restart the computer, or start the installer as root.");
    }
    if (complaint.find("No authentication agent found") != std::string::npos) {
        return refusal("There is no way to ask for an administrator’s password, because no authentication agent is "
                       "running on this desktop. Start one, or start the installer as root.");
    }
    return refusal("The administrator user name or password was incorrect.");
}

struct Channel {
    FileDescriptor ours;
    FileDescriptor theirs;
};

Channel makeChannel()
{
    std::array<int, 2> ends{-1, -1};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

} // namespace

std::variant<std::unique_ptr<Shell>, ScriptError> PkexecPrompt::authorize()
{
    std::error_code error;
    const fs::path runner = fs::canonical(runner_, error);
    if (error || !isRootsAlone(runner)) {
        return refusal("The installer lies in a folder that others than the system’s administrator can change, and so "
                       "must not ask for administrator rights. Move it to such a folder, for example below /opt.");
    }
    Channel channel = makeChannel();
    Pipe complaints = makePipe();
    // pkexec passes parts of its environment on and refuses to start for the sake of others, so it gets none.
    const auto started = startChild({{pkexec_, "--disable-internal-agent", runner.native()}, {}},
        {channel.theirs.get(), channel.theirs.get(), complaints.writeEnd.get()});
    if (std::holds_alternative<StartFailure>(started)) {
        return refusal("There is no way to ask for an administrator’s password, because the program pkexec is missing. "
                       "Install it, or start the installer as root.");
    }
    channel.theirs.close();
    complaints.writeEnd.close();
    if (runnerComesUp(channel.ours)) {
        return std::make_unique<RunnerShell>(std::move(channel.ours), std::get<pid_t>(started));
    }
    channel.ours.close();
    const int status = exitStatusOf(std::get<pid_t>(started));
    std::string complaint;
    drain(complaints.readEnd, complaint);
    return explainRefusal(status, complaint);
}

} // namespace corvellane
