#include "platform/linux/RootPrompt.h"

#include "platform/linux/Preflight.h"
#include "platform/linux/RunnerShell.h"
#include "platform/posix/UserAccount.h"

namespace corvellane {

Expected<std::shared_ptr<script::Shell>> RootPrompt::authorize(const std::vector<std::string>& commands)
{
    const UserAccount user = realUser();
    const runner::Site site{runner::installFolders("", user.home, products_), {.home = user.home}};
    if (const auto reason = whyNotInstallable(commands, site)) {
        return Unexpected(*reason);
    }
    return startRunner({{runner_, products_}, {"SUDO_UID=" + std::to_string(user.id)}},
        [](int, const std::string& complaint) { return runnerCannotStart(complaint); });
}

} // namespace corvellane
