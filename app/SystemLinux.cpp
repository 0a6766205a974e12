#include "app/System.h"

#include "platform/linux/LinuxShell.h"
#include "platform/linux/PkexecPrompt.h"
#include "platform/linux/RunningExecutable.h"
#include "platform/posix/ExecutableBundle.h"
#include "platform/script/DirectPrompt.h"
#include "platform/script/InterpretedScriptService.h"

namespace corvellane {

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
    return std::make_shared<script::InterpretedScriptService>(script::Host{shell, prompt, fileManager, folders, meter});
}

} // namespace corvellane
