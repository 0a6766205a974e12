#include "platform/linux/PkexecPrompt.h"

#include "platform/linux/IsolatedChild.h"
#include "platform/linux/RunnerShell.h"
#include "platform/posix/RootOnly.h"
#include "platform/script/ErrorInformation.h"

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string_view>

namespace corvellane {
namespace {

/// What pkexec exits with when it has started nothing.
constexpr int declined = 126;
constexpr int notAuthorized = 127;

Unexpected refusal(std::string message)
{
    return Unexpected({std::move(message), script::error_number::notPermitted});
}

/// `reason` may be empty, and may end as programs end what they print.
Unexpected cannotStart(std::string reason)
{
    reason.erase(reason.find_last_not_of(" \n") + 1);
    return refusal("The program that runs commands with administrator rights could not be started."
        + (reason.empty() ? reason : " " + reason));
}

Unexpected cannotAsk(const Failure& failure)
{
    if (failure.number != ENOENT) {
        return cannotStart(failure.message);
    }
    return refusal("There is no way to ask for an administrator’s password, because the program pkexec is missing. "
                   "Install it, or start the installer as root.");
}

bool isSystemBusRunning()
{
    const FileDescriptor connection(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    constexpr std::string_view path = "/run/dbus/system_bus_socket";
    path.copy(address.sun_path, path.size());
    return connection.isOpen()
        && connect(connection.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

/// `complaint` only chooses the words: pkexec gives a refused password, a missing agent and a fault of its own the same
/// status. Its words are English, because it gets no environment.
Unexpected explainRefusal(int status, const std::string& complaint)
{
    const auto isSaid = [&complaint](const char* words) { return complaint.find(words) != std::string::npos; };
    if (status == declined) {
        return Unexpected({"User canceled.", script::error_number::userCanceled});
    }
    if (status == notAuthorized && !isSystemBusRunning()) {
        return refusal("There is no way to ask for an administrator’s password, because the system’s message bus is "
                       "not running. Restart the computer, or start the installer as root.");
    }
    if (status == notAuthorized && isSaid("No authentication agent found")) {
        return refusal("There is no way to ask for an administrator’s password, because no authentication agent is "
                       "running on this desktop. Start one, or start the installer as root.");
    }
    if (status == notAuthorized && isSaid("Not authorized")) {
        return refusal("The administrator user name or password was incorrect.");
    }
    return cannotStart(complaint);
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

Expected<std::shared_ptr<script::Shell>> PkexecPrompt::authorize()
{
    std::error_code error;
    const std::string runner = std::filesystem::canonical(runner_, error);
    if (error || !onlyRootCanChange(runner) || (products_ && !onlyRootCanChangeTree(*products_))) {
        return refusal("The installer can be changed by others than the system’s administrator, and so must not ask "
                       "for administrator rights. Have it unpacked by root with “tar --no-same-owner”, below /opt for "
                       "example.");
    }
    // From here on other programs of the user cannot reach into this process for the channel.
    prctl(PR_SET_DUMPABLE, 0);
    Channel channel = makeChannel();
    Pipe complaints = makePipe();
    if (!channel.ours.isOpen() || !complaints.readEnd.isOpen()) {
        return cannotStart(std::strerror(errno));
    }
    // pkexec passes parts of its environment on and refuses to start for the sake of others, so it gets none.
    const auto child = startIsolatedChild({{pkexec_, "--disable-internal-agent", runner}, {}},
        {channel.theirs.get(), channel.theirs.get(), complaints.writeEnd.get()});
    if (!child) {
        return cannotAsk(child.error());
    }
    channel.theirs.close();
    complaints.writeEnd.close();
    if (runnerComesUp(channel.ours)) {
        return std::make_shared<RunnerShell>(std::move(channel.ours), *child);
    }
    channel.ours.close();
    const int status = exitStatusOf(*child);
    std::string complaint;
    drain(complaints.readEnd, complaint);
    return explainRefusal(status, complaint);
}

} // namespace corvellane
