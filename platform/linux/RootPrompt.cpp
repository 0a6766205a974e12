#include "platform/linux/RootPrompt.h"

#include "platform/linux/Preflight.h"
#include "platform/linux/RunnerShell.h"

namespace corvellane {

Expected<std::shared_ptr<script::Shell>> RootPrompt::authorize(const std::vector<std::string>& commands)
{
    const runner::Site site{runner::installFolders("", person_.home, products_), {.home = person_.home}};
    if (const auto reason = whyNotInstallable(commands, site)) {
        return Unexpected(*reason);
    }
    return startRunner({runnerWords(runner_, products_, commands), {"SUDO_UID=" + std::to_string(person_.id)}},
        [](int, const std::string& complaint) { return runnerCannotStart(complaint); });
}

} // namespace corvellane
