#include "platform/linux/LinuxShell.h"

#include "platform/linux/IsolatedChild.h"
#include "platform/linux/ShellDialect.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace corvellane {
namespace {

/// Returns when the process has ended or, where that cannot be told, when both streams have.
void drainUntilEnd(pid_t process, FileDescriptor& output, FileDescriptor& errors, script::CommandResult& result)
{
    // The C library's header declares pidfd_open() without C linkage.
    const FileDescriptor ended(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    bool running = true;
    while (running && (ended.isOpen() || output.isOpen() || errors.isOpen())) {
        std::array<pollfd, 3> events{{{output.get(), POLLIN, 0}, {errors.get(), POLLIN, 0}, {ended.get(), POLLIN, 0}}};
        poll(events.data(), events.size(), -1);
        running = (events[2].revents & POLLIN) == 0;
        drain(output, result.output);
        drain(errors, result.errors);
    }
}

Unexpected cannotRun(const std::string& reason, int number)
{
    return Unexpected({"The command could not be run: " + reason + ".", number});
}

} // namespace

LinuxShell::LinuxShell(const UserAccount& user)
    : environment_{"PATH=/usr/bin:/bin:/usr/sbin:/sbin", "LC_ALL=C.UTF-8", "USER=" + user.name, "LOGNAME=" + user.name,
          "HOME=" + user.home}
{
}

Expected<script::CommandResult> LinuxShell::run(const std::string& command)
{
    const FileDescriptor nothing(open("/dev/null", O_RDONLY | O_CLOEXEC));
    Pipe output = makePipe();
    Pipe errors = makePipe();
    if (!nothing.isOpen() || !output.readEnd.isOpen() || !errors.readEnd.isOpen()) {
        return cannotRun(std::strerror(errno), errno);
    }
    const auto child = startIsolatedChild({{"/bin/sh", "-c", inBsdDialect(command)}, environment_},
        {nothing.get(), output.writeEnd.get(), errors.writeEnd.get()});
    if (!child) {
        return cannotRun(child.error().message, child.error().number);
    }
    output.writeEnd.close();
    errors.writeEnd.close();
    script::CommandResult result;
    drainUntilEnd(*child, output.readEnd, errors.readEnd, result);
    result.status = exitStatusOf(*child);
    return result;
}

} // namespace corvellane
