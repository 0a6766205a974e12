#include "app/System.h"

#include "platform/linux/LinuxShell.h"
#include "platform/linux/PkexecPrompt.h"
#include "platform/linux/RunningExecutable.h"
#include "platform/posix/ExecutableBundle.h"
#include "platform/script/DirectPrompt.h"
#include "platform/script/InterpretedScriptService.h"

namespace corvellane {
namespace {

/// The service and what it refers to.
struct Scripts {
    std::shared_ptr<script::Shell> shell;
    std::shared_ptr<script::AdministratorPrompt> prompt;
    std::shared_ptr<script::FileManager> fileManager;
    std::shared_ptr<StandardFolders> folders;
    std::shared_ptr<WorkMeter> meter;
    script::InterpretedScriptService service{{*shell, *prompt, *fileManager, *folders, *meter}};
};

} // namespace

void System::addServicesOfItsOwn()
{
    const auto bundle = std::make_shared<ExecutableBundle>(runningExecutable());
    resources = bundle;
    shell = std::make_shared<LinuxShell>(realUser());
    if (hasRootRights()) {
        prompt = std::make_shared<script::DirectPrompt>(shell);
    } else {
        prompt = std::make_shared<PkexecPrompt>(
            bundle->program("corvellane-command-runner").value_or(""), bundle->folder("Products"));
    }
}

std::shared_ptr<ScriptService> System::makeScripts() const
{
    const auto made = std::make_shared<Scripts>(Scripts{shell, prompt, fileManager, folders, meter});
    return {made, &made->service};
}

} // namespace corvellane
