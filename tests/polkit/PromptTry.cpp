// prompt-try RUNNER SCRIPT [PRODUCTS]: runs the script in the file SCRIPT with administrator rights asked for through
// polkit, and prints "result: TEXT" or "error: DESCRIPTION". RUNNER is the path of the command runner, PRODUCTS the
// folder that the script copies from.

#include "platform/posix/PkexecPrompt.h"
#include "platform/posix/PosixShell.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/UserAccount.h"
#include "platform/script/FileManager.h"
#include "platform/script/InterpretedScriptService.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

struct NoFileManager : corvellane::FileManager {
    bool acceptsRequests() override { return false; }
};

} // namespace

int main(int count, char** arguments)
{
    using namespace corvellane;
    PosixShell shell(realUser());
    const auto products = count > 3 ? std::optional<std::string>(arguments[3]) : std::nullopt;
    PkexecPrompt prompt(
        arguments[1], products, std::getenv("PKEXEC") == nullptr ? "/usr/bin/pkexec" : std::getenv("PKEXEC"));
    NoFileManager fileManager;
    const PosixStandardFolders folders;
    InterpretedScriptService service({shell, prompt, fileManager, folders});
    std::ifstream file(arguments[2]);
    const std::string source{std::istreambuf_iterator<char>(file), {}};
    const ScriptExecution execution = service.create(source)->execute();
    if (execution.result) {
        std::printf("result: %s\n", execution.result->text.value_or("nothing").c_str());
    } else {
        std::printf("error: %s\n", execution.errorDescription.value_or("none").c_str());
    }
    return 0;
}
