#include "platform/linux/PkexecPrompt.h"

#include "platform/linux/Preflight.h"
#include "platform/linux/RunnerShell.h"
#include "platform/linux/TerminalAgent.h"
#include "platform/posix/UserAccount.h"
#include "platform/script/ErrorInformation.h"

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

namespace corvellane {
namespace {

/// What pkexec exits with when it has started nothing.
constexpr int declined = 126;
constexpr int notAuthorized = 127;

Failure refusal(std::string message)
{
    return {std::move(message), script::error_number::notPermitted};
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

bool isWithoutAgent(int status, const std::string& complaint)
{
    return status == notAuthorized && complaint.find("No authentication agent found") != std::string::npos;
}

/// `complaint` only chooses the words: pkexec gives a refused password, a missing agent and a fault of its own the same
/// status. Its words are English, because it gets no environment.
Failure explainRefusal(int status, const std::string& complaint)
{
    if (status == declined) {
        return {"User canceled.", script::error_number::userCanceled};
    }
    if (status == notAuthorized && !isSystemBusRunning()) {
        return refusal("There is no way to ask for an administrator’s password, because the system’s message bus is "
                       "not running. Restart the computer, or start the installer as root.");
    }
    if (isWithoutAgent(status, complaint)) {
        return refusal("There is no way to ask for an administrator’s password, because no authentication agent is "
                       "running on this desktop. Start one, or start the installer as root.");
    }
    if (status == notAuthorized && complaint.find("Not authorized") != std::string::npos) {
        return refusal("The administrator user name or password was incorrect.");
    }
    return runnerCannotStart(complaint);
}

/// A tracer that came before this process was closed to others is still there.
bool isTraced()
{
    std::error_code error;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task", error)) {
        std::ifstream status(thread.path() / "status");
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("TracerPid:") && line.find_first_of("123456789") != std::string::npos) {
                return true;
            }
        }
    }
    return static_cast<bool>(error);
}

/// Says why somebody else than root could change a part of the installer, and what to do about it.
Failure changeable(const std::string& reason)
{
    return refusal(reason
        + " So the installer must not ask for administrator rights. Have it unpacked by root with "
          "“tar --no-same-owner”, below /opt for example.");
}

} // namespace

PkexecPrompt::PkexecPrompt(std::string runner, std::string products, script::PasswordAsked where, std::string pkexec)
    : runner_(std::move(runner))
    , products_(std::move(products))
    , where_(where)
    , pkexec_(std::move(pkexec))
{
}

std::optional<Failure> PkexecPrompt::whyNotAsked(const std::vector<std::string>& commands) const
{
    for (const std::string& path : {runner_, products_}) {
        if (const auto reason = path.empty() ? std::nullopt : runner::whyChangeable(path)) {
            return changeable(*reason);
        }
    }
    const std::string home = realUser().home;
    const runner::Site site{runner::installFolders("", home, products_), {.home = home}, runner::Owner::rootAlone};
    return whyNotInstallable(commands, site);
}

Expected<std::shared_ptr<script::Shell>> PkexecPrompt::authorize(const std::vector<std::string>& commands)
{
    if (access(pkexec_.c_str(), X_OK) != 0) {
        return Unexpected(refusal("There is no way to ask for an administrator’s password, because the program pkexec "
                                  "is missing. Install it, or start the installer as root."));
    }
    if (auto reason = whyNotAsked(commands)) {
        return Unexpected(*std::move(reason));
    }
    // From here on other programs of the user cannot reach into this process for the channel.
    prctl(PR_SET_DUMPABLE, 0);
    if (isTraced()) {
        return Unexpected(refusal("Another program controls the installer, such as a debugger, and so it must not ask "
                                  "for administrator rights. Start the installer without it."));
    }
    // The name under which polkit knows the runner. pkexec passes parts of its environment on and refuses to start for
    // the sake of others, so it gets none.
    std::error_code error;
    const std::string runner = std::filesystem::canonical(runner_, error);
    Invocation invocation{{pkexec_, "--disable-internal-agent"}, {}};
    std::ranges::move(runnerWords(runner, products_, commands), std::back_inserter(invocation.words));
    bool lacksAgent = false;
    auto shell = startRunner(invocation, [&](int status, const std::string& complaint) {
        lacksAgent = isWithoutAgent(status, complaint);
        return explainRefusal(status, complaint);
    });
    if (lacksAgent && where_ == script::PasswordAsked::onTerminalToo) {
        // Known earlier, it would be asked before the desktop's.
        const TerminalAgent agent;
        shell = startRunner(invocation, &explainRefusal);
    }
    return shell;
}

} // namespace corvellane
