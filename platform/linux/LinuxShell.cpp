#include "platform/linux/LinuxShell.h"

#include "helper/Program.h"
#include "platform/linux/ShellDialect.h"

#include <utility>

namespace corvellane {

LinuxShell::LinuxShell(const UserAccount& user)
    : environment_{"PATH=/usr/bin:/bin:/usr/sbin:/sbin", "LC_ALL=C.UTF-8", "USER=" + user.name, "LOGNAME=" + user.name,
          "HOME=" + user.home}
{
}

Expected<script::CommandResult> LinuxShell::run(const std::string& command)
{
    auto reply = runner::runProgram("/bin/sh", {"/bin/sh", "-c", inBsdDialect(command)}, environment_, command);
    return script::CommandResult{reply.status, std::move(reply.output), std::move(reply.errors)};
}

} // namespace corvellane
