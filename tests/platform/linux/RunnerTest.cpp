#include "helper/RunnerMessages.h"
#include "platform/linux/RunnerShell.h"
#include "platform/posix/ChildProcess.h"
#include "platform/posix/UserAccount.h"
#include "platform/script/ErrorInformation.h"
#include "tests/ScratchFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <array>

namespace corvellane {
namespace {

/// The command runner, started as pkexec does it, but for the present user.
class RunnerTest : public testing::Test {
protected:
    /// Starts the runner; the channel to it.
    FileDescriptor start(const std::string& user = std::to_string(getuid()))
    {
        std::array<int, 2> ends{-1, -1};
        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
        const FileDescriptor theirs(ends[1]);
        const FileDescriptor nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
        // What is inherited here, the runner has to put away itself.
        const FileDescriptor leaked(dup(theirs.get()));
        const mode_t before = umask(0077);
        runner = *startChild({{COMMAND_RUNNER}, {"PKEXEC_UID=" + user, "LEAKED=yes", "HOME=/gone"}},
            {theirs.get(), theirs.get(), nothing.get()});
        umask(before);
        return FileDescriptor(ends[0]);
    }

    std::unique_ptr<RunnerShell> startShell()
    {
        FileDescriptor channel = start();
        EXPECT_TRUE(runnerComesUp(channel));
        return std::make_unique<RunnerShell>(std::move(channel), runner);
    }

    /// How the runner ends that is sent these bytes and no more.
    int statusAfter(const std::string& bytes)
    {
        FileDescriptor channel = start();
        EXPECT_TRUE(runnerComesUp(channel));
        send(channel.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        shutdown(channel.get(), SHUT_WR);
        const int status = exitStatusOf(runner);
        std::string answer;
        drain(channel, answer);
        EXPECT_EQ(answer, "");
        return status;
    }

    pid_t runner = -1;
};

TEST_F(RunnerTest, runsCommandsInAWorldOfTheirOwn)
{
    const auto shell = startShell();
    const auto world = shell->run("env | sort; umask; pwd; cat; ls /proc/self/fd | wc -l");
    const UserAccount user = realUser();
    EXPECT_EQ(world->output,
        "HOME=" + user.home + "\nLC_ALL=C.UTF-8\nLOGNAME=" + user.name
            + "\nPATH=/usr/bin:/bin:/usr/sbin:/sbin\nPWD=/\nUSER=" + user.name + "\n0022\n/\n4\n");
    EXPECT_EQ(shell->run("sed -nE 's/^(Sig(Blk|Ign)).*(.{4})$/\\1 \\3/p' /proc/self/status")->output,
        "SigBlk 0000\nSigIgn 0000\n");
    const auto failed = shell->run("echo out; echo err >&2; exit 7");
    EXPECT_EQ(failed->output + failed->errors, "out\nerr\n");
    EXPECT_EQ(failed->status, 7);
    EXPECT_EQ(shell->run("kill -9 $$")->status, 128 + 9);
    EXPECT_EQ(shell->run("cut -d ' ' -f 6 /proc/$PPID/stat; echo $PPID")->output,
        std::to_string(runner) + "\n" + std::to_string(runner) + "\n")
        << "in a session of its own";
    EXPECT_EQ(shell->run("for name in PIPE HUP INT TERM QUIT TSTP; do kill -$name $PPID; done")->status, 0);
    const ScratchFolder scratch;
    scratch.write("from/file", "");
    EXPECT_EQ(shell->run("cd " + scratch.path() + "; mkdir to; cp -R -f from/ to/; ls to")->output, "file\n")
        << "in the dialect that scripts are written in";
}

TEST_F(RunnerTest, keepsAMebibyteOfEachStreamAndWaitsForNothingInTheBackground)
{
    const ScratchFolder scratch;
    const auto shell = startShell();
    const auto result = shell->run("(sleep 600; echo late) & echo $! > " + scratch.path()
        + "/id; head -c 3000000 /dev/zero | tr '\\0' o; head -c 2000000 /dev/zero | tr '\\0' e >&2");
    EXPECT_EQ(result->output, std::string(1 << 20, 'o'));
    EXPECT_EQ(result->errors, std::string(1 << 20, 'e'));
    EXPECT_EQ(shell->run("kill $(cat " + scratch.path() + "/id)")->status, 0);
}

TEST_F(RunnerTest, saysWhatBecameOfACommandThatItCannotRunAndOfItself)
{
    const auto shell = startShell();
    EXPECT_EQ(
        shell->run(": " + std::string(200000, 'x'))->errors, "The command could not be run: Argument list too long.\n");
    const auto ended = shell->run("kill -9 $PPID");
    EXPECT_EQ(ended.error().number, script::error_number::connectionInvalid);
    EXPECT_EQ(shell->run("true").error().number, script::error_number::connectionInvalid);
}

TEST_F(RunnerTest, endsWithTheConversationAndWithAnythingThatBreaksItsRules)
{
    using namespace std::string_literals;
    const ScratchFolder scratch;
    const std::string command = "touch " + scratch.path() + "/run";
    const std::string size(1, static_cast<char>(command.size() + 1));
    EXPECT_EQ(statusAfter(""), 0);
    EXPECT_EQ(statusAfter("\0\0\0"s), 0);
    EXPECT_EQ(statusAfter("\0\0\0"s + size + command), 0) << "cut off";
    EXPECT_EQ(statusAfter("\0\0\0"s + size + command + "\0"s), 0) << "NUL in it";
    EXPECT_EQ(statusAfter("\0\x10\0\1"s + command + std::string((1 << 20) + 1 - command.size(), ' ')), 0) << "too long";
    EXPECT_FALSE(std::filesystem::exists(scratch.path() + "/run"));
    for (const char* const user : {"", "nobody", "-1", "4000000", "0x", "99999999999"}) {
        const FileDescriptor channel = start(user);
        EXPECT_FALSE(runnerComesUp(channel)) << user;
        EXPECT_EQ(exitStatusOf(runner), 2) << user;
    }
}

} // namespace
} // namespace corvellane
