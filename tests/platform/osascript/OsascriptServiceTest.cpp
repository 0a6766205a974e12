#include "platform/osascript/OsascriptService.h"

#include "platform/posix/ProcessSetup.h"
#include "tests/ScratchFolder.h"

#include <gtest/gtest.h>

namespace corvellane {
namespace {

/// Scripts are handed to a stand-in for the command: a shell script of the test's own.
class OsascriptServiceTest : public testing::Test {
protected:
    OsascriptServiceTest() { setUpProcess(); }

    ScriptExecution execute(const std::string& standIn, const std::string& source)
    {
        scratch.write("osascript", "#!/bin/sh\n[ \"$*\" = - ] || exit 9\n" + standIn + "\n");
        const std::string command = scratch.path() + "/osascript";
        std::filesystem::permissions(command, std::filesystem::perms::owner_all);
        return OsascriptService(command).create(source)->execute();
    }

    ScratchFolder scratch;
};

TEST_F(OsascriptServiceTest, handsTheScriptOverAndTakesTheResultWithoutItsLineFeed)
{
    const std::string source = "return \"$HOME\"\n" + std::string(1000000, 'x');
    EXPECT_EQ(execute("cat; echo", source).result->text, source);
    EXPECT_EQ(execute("cat >/dev/null; printf 'a\\n\\n'", source).result->text, "a\n");
    EXPECT_EQ(execute("cat >/dev/null; echo", source).result->text, "");
    EXPECT_EQ(execute("cat >/dev/null", source).result->text, std::nullopt);
}

TEST_F(OsascriptServiceTest, givesErrorInformationForAFailure)
{
    const std::string source(1000000, 'x');
    const ScriptExecution failed = execute("echo '0:5: execution error: User canceled. (-128)' >&2; exit 1", source);
    EXPECT_FALSE(failed.result);
    EXPECT_EQ(failed.errorDescription, "0:5: execution error: User canceled. (-128)");
    const ScriptExecution missing = OsascriptService("/nowhere/osascript").create(source)->execute();
    EXPECT_EQ(missing.errorDescription, "/nowhere/osascript could not be started");
}

} // namespace
} // namespace corvellane
