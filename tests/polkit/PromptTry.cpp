// prompt-try RUNNER SCRIPT [PRODUCTS]: runs the script in the file SCRIPT with administrator rights, asked for through
// polkit unless root has them, and prints "result: TEXT" or "error: DESCRIPTION". RUNNER is the path of the command
// runner, PRODUCTS the folder that the script copies from.

#include "app/System.h"
#include "platform/ScriptService.h"
#include "platform/linux/PkexecPrompt.h"
#include "platform/linux/RootPrompt.h"
#include "platform/posix/UserAccount.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

int main(int count, char** arguments)
{
    using namespace corvellane;
    const std::string products = count > 3 ? arguments[3] : "";
    const char* const pkexec = std::getenv("PKEXEC");
    System system;
    if (hasRootRights()) {
        system.prompt = std::make_shared<RootPrompt>(arguments[1], products, realUser());
    } else {
        system.prompt = std::make_shared<PkexecPrompt>(
            arguments[1], products, script::PasswordAsked::onDesktop, pkexec == nullptr ? "/usr/bin/pkexec" : pkexec);
    }
    std::ifstream file(arguments[2]);
    const std::string source{std::istreambuf_iterator<char>(file), {}};
    const ScriptExecution execution = system.platform().scripts.create(source)->execute();
    if (execution.result) {
        std::printf("result: %s\n", execution.result->text.value_or("nothing").c_str());
    } else {
        std::printf("error: %s\n", execution.errorDescription.value_or("none").c_str());
    }
    return 0;
}
