#include "app/System.h"
#include "platform/Resources.h"
#include "platform/ScriptService.h"
#include "tests/ScratchFolder.h"
#include "tools/Rehearsal.h"

#include <gmock/gmock.h>

#include <mach-o/dyld.h>

namespace corvellane {
namespace {

std::string runningProgram;

/// What the system that has its own script service hands out, as far as that can be seen on another one.
TEST(OtherSystem, runsScriptsByItsOwnServiceAndFindsItsBundle)
{
    const ScratchFolder scratch;
    scratch.write("Contents/MacOS/Installer", "");
    std::filesystem::create_symlink("Contents/MacOS/Installer", scratch.path() + "/link");
    runningProgram = scratch.path() + "/link";
    System system;
    EXPECT_EQ(system.resources->folder("Products"), scratch.path() + "/Contents/Resources/Products");
    EXPECT_EQ(system.platform().scripts.create("return 1")->execute().errorDescription,
        "/usr/bin/osascript could not be started");
    runningProgram = "/gone";
    EXPECT_EQ(System().resources->folder("Products"), std::nullopt);
}

TEST(OtherSystem, refusesToRehearseWhereThatWouldAskForAPassword)
{
    System system;
    makeRehearsal(system, "/Products", "/into");
    const ScriptExecution execution = system.platform().scripts.create("return 1")->execute();
    EXPECT_THAT(execution.result.value().text.value(), testing::HasSubstr("Nothing has been installed"));
}

} // namespace
} // namespace corvellane

int _NSGetExecutablePath(char* path, std::uint32_t* size)
{
    const std::string& text = corvellane::runningProgram;
    if (text.size() >= *size) {
        return -1;
    }
    path[text.copy(path, text.size())] = '\0';
    return 0;
}
