#include "platform/posix/PosixShell.h"

#include "platform/posix/ChildProcess.h"
#include "platform/posix/ProcessSetup.h"
#include "tests/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>

namespace corvellane {
namespace {

class PosixShellTest : public testing::Test {
protected:
    CommandResult run(const std::string& command)
    {
        auto result = shell.run(command);
        return std::get<CommandResult>(std::move(result));
    }

    PosixShell shell{{"someone", "/home/someone"}};
};

TEST_F(PosixShellTest, runsCommandsInAWorldOfTheirOwn)
{
    setenv("LEAKED", "yes", 1);
    EXPECT_EQ(run("env | sort").output,
        "HOME=/home/someone\nLC_ALL=C.UTF-8\nLOGNAME=someone\nPATH=/usr/bin:/bin:/usr/sbin:/sbin\nPWD=/\n"
        "USER=someone\n");
    EXPECT_EQ(run("pwd; cat; ls /proc/self/fd | wc -l").output, "/\n4\n");
    EXPECT_EQ(run("exit 126").status, 126);
    EXPECT_EQ(run("echo out; echo err >&2; exit 7").errors, "err\n");
    EXPECT_EQ(run("kill -9 $$").status, 128 + 9);
}

TEST_F(PosixShellTest, givesCommandsDefaultSignals)
{
    struct sigaction ignoring{};
    struct sigaction before{};
    ignoring.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &ignoring, &before);
    sigset_t blocked;
    sigset_t unblocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    sigprocmask(SIG_BLOCK, &blocked, &unblocked);
    // The last digits: the C library keeps two signals of its own ignored.
    const CommandResult masks = run("sed -nE 's/^(Sig(Blk|Ign)).*(.{7})$/\\1 \\3/p' /proc/self/status");
    sigprocmask(SIG_SETMASK, &unblocked, nullptr);
    sigaction(SIGPIPE, &before, nullptr);
    EXPECT_EQ(masks.output, "SigBlk 0000000\nSigIgn 0000000\n");
}

TEST_F(PosixShellTest, takesNoCommandForDoneThatNobodyHeardTheEndOf)
{
    std::signal(SIGCHLD, SIG_IGN);
    EXPECT_NE(run("exit 3").status, 0);
    setUpProcess();
    EXPECT_EQ(run("exit 3").status, 3);
}

TEST(StartChild, passesNoStreamOfThisProcessOnForOneThatIsMissing)
{
    for (const StandardStreams& streams : {StandardStreams{-1, 1, 2}, {0, -1, 2}, {0, 1, -1}}) {
        EXPECT_EQ(std::get<StartFailure>(startChild({{"/bin/true"}, {}}, streams)).error, EBADF);
    }
}

TEST_F(PosixShellTest, drainsBothStreamsTogetherAndKeepsAMebibyteOfEach)
{
    const CommandResult result
        = run("head -c 5000000 /dev/zero | tr '\\0' o; head -c 3000000 /dev/zero | tr '\\0' e >&2; exit 2");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, std::string(1 << 20, 'o'));
    EXPECT_EQ(result.errors, std::string(1 << 20, 'e'));
}

TEST_F(PosixShellTest, waitsForNothingThatWasLeftInTheBackground)
{
    const ScratchFolder scratch;
    const std::string keepId = " & echo $! >> " + scratch.path() + "/ids; ";
    EXPECT_EQ(run("sleep 600" + keepId + "(while :; do echo noise; done)" + keepId + "sleep 0.1").status, 0);
    EXPECT_EQ(run("kill $(cat " + scratch.path() + "/ids)").status, 0);
}

TEST_F(PosixShellTest, saysWhyACommandCannotBeRun)
{
    const auto result = shell.run(": " + std::string(200000, 'x'));
    EXPECT_EQ(std::get<ScriptError>(result).message, "The command could not be run: Argument list too long.");
}

} // namespace
} // namespace corvellane
