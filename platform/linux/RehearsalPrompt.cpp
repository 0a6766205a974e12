#include "platform/linux/RehearsalPrompt.h"

#include "platform/linux/Preflight.h"

#include <unistd.h>

namespace corvellane {
namespace {

class RehearsalShell : public script::Shell {
public:
    explicit RehearsalShell(runner::Site site)
        : site_(std::move(site))
    {
    }

    Expected<script::CommandResult> run(const std::string& command) override
    {
        auto reply = runner::carryOut(command, site_);
        return script::CommandResult{reply.status, std::move(reply.output), std::move(reply.errors)};
    }

private:
    runner::Site site_;
};

} // namespace

Expected<std::shared_ptr<script::Shell>> RehearsalPrompt::authorize(const std::vector<std::string>& commands)
{
    // The home is one more folder that is made.
    runner::Site site{folders_, {.id = geteuid(), .home = "/"}};
    if (const auto reason = whyNotInstallable(commands, site)) {
        return Unexpected(*reason);
    }
    return std::make_shared<RehearsalShell>(std::move(site));
}

} // namespace corvellane
