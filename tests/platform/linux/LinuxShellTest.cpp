#include "platform/linux/LinuxShell.h"

#include "tests/ScratchFolder.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace corvellane {
namespace {

class LinuxShellTest : public testing::Test {
protected:
    script::CommandResult run(const std::string& command) { return shell.run(command).value(); }

    LinuxShell shell{{"someone", "/home/someone"}};
};

TEST_F(LinuxShellTest, runsCommandsInAWorldOfTheirOwn)
{
    setenv("LEAKED", "yes", 1);
    const int inherited = dup(STDERR_FILENO);
    EXPECT_EQ(run("env | sort").output,
        "HOME=/home/someone\nLC_ALL=C.UTF-8\nLOGNAME=someone\nPATH=/usr/bin:/bin:/usr/sbin:/sbin\nPWD=/\n"
        "USER=someone\n");
    EXPECT_EQ(run("pwd; cat; ls /proc/self/fd | wc -l").output, "/\n4\n");
    EXPECT_EQ(run("exit 126").status, 126);
    EXPECT_EQ(run("echo out; echo err >&2; exit 7").errors, "err\n");
    EXPECT_EQ(run("kill -9 $$").status, 128 + 9);
    close(inherited);
}

TEST_F(LinuxShellTest, drainsBothStreamsTogetherAndKeepsAMebibyteOfEach)
{
    const script::CommandResult result
        = run("head -c 5000000 /dev/zero | tr '\\0' o; head -c 3000000 /dev/zero | tr '\\0' e >&2; exit 2");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, std::string(1 << 20, 'o'));
    EXPECT_EQ(result.errors, std::string(1 << 20, 'e'));
}

TEST_F(LinuxShellTest, waitsForNothingThatWasLeftInTheBackground)
{
    const ScratchFolder scratch;
    const std::string keepId = " & echo $! >> " + scratch.path() + "/ids; ";
    EXPECT_EQ(run("sleep 600" + keepId + "(while :; do echo noise; done)" + keepId + "sleep 0.1").status, 0);
    // The second may have ended by itself: nobody reads what it writes.
    EXPECT_EQ(run("set -- $(cat " + scratch.path() + "/ids); kill $1 && { kill $2; :; }").status, 0);
}

TEST_F(LinuxShellTest, saysWhyACommandCannotBeRun)
{
    const auto result = shell.run(": " + std::string(200000, 'x'));
    EXPECT_EQ(result.error().message, "The command could not be run: Argument list too long.");
}

} // namespace
} // namespace corvellane
