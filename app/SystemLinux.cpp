#include "app/System.h"

#include "platform/linux/LinuxShell.h"
#include "platform/linux/PkexecPrompt.h"
#include "platform/linux/RehearsalPrompt.h"
#include "platform/linux/RootPrompt.h"
#include "platform/linux/RunningExecutable.h"
#include "platform/posix/ExecutableBundle.h"
#include "platform/script/InterpretedScriptService.h"

namespace corvellane {

void System::addServicesOfItsOwn(const UserAccount& person, script::PasswordAsked passwordAsked)
{
    const auto bundle = std::make_shared<ExecutableBundle>(runningExecutable());
    resources = bundle;
    shell = std::make_shared<LinuxShell>(person);
    const std::string runner = bundle->program("corvellane-command-runner").value_or("");
    const std::string products = bundle->folder("Products").value_or("");
    if (hasRootRights()) {
        prompt = std::make_shared<RootPrompt>(runner, products, person);
    } else {
        prompt = std::make_shared<PkexecPrompt>(runner, products, passwordAsked);
    }
}

std::shared_ptr<script::AdministratorPrompt> System::makeRehearsalPrompt(
    const std::string& products, const std::string& into) const
{
    return std::make_shared<RehearsalPrompt>(runner::installFolders(into, realUser().home, products));
}

std::shared_ptr<ScriptService> System::makeScripts() const
{
    return std::make_shared<script::InterpretedScriptService>(script::Host{shell, prompt, fileManager, folders, meter});
}

} // namespace corvellane
