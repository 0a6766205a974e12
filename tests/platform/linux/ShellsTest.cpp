#include "helper/RunnerMessages.h"
#include "platform/linux/LinuxShell.h"
#include "platform/linux/RunnerShell.h"
#include "platform/posix/ChildProcess.h"
#include "platform/script/ErrorInformation.h"
#include "tests/ScratchFolder.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <array>

namespace corvellane {
namespace {

/// The shell of this process, and that of the command runner, started as pkexec does it, but for the present user.
class ShellsTest : public testing::Test {
protected:
    ShellsTest()
    {
        setenv("LEAKED", "yes", 1);
        setenv("HOME", "/gone", 1);
    }

    /// Starts the runner; the channel to it.
    FileDescriptor start(const std::string& user = std::to_string(getuid()))
    {
        std::array<int, 2> ends{-1, -1};
        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
        const FileDescriptor theirs(ends[1]);
        const FileDescriptor nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
        const mode_t before = umask(0077);
        runner = *startChild({{COMMAND_RUNNER}, {"PKEXEC_UID=" + user, "LEAKED=yes", "HOME=/gone"}},
            {theirs.get(), theirs.get(), nothing.get()});
        umask(before);
        return FileDescriptor(ends[0]);
    }

    std::unique_ptr<script::Shell> startShell()
    {
        FileDescriptor channel = start();
        EXPECT_TRUE(runnerComesUp(channel));
        return std::make_unique<RunnerShell>(std::move(channel), runner);
    }

    std::array<std::unique_ptr<script::Shell>, 2> shells()
    {
        return {std::make_unique<LinuxShell>(realUser()), startShell()};
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

    ScratchFolder scratch;
    /// What is inherited here, a shell has to put away itself.
    FileDescriptor leaked{dup(STDERR_FILENO)};
    pid_t runner = -1;
};

TEST_F(ShellsTest, runCommandsInAWorldOfTheirOwn)
{
    const UserAccount user = realUser();
    for (const auto& shell : shells()) {
        const auto world = shell->run("env | sort; umask; pwd; cat; ls /proc/self/fd | wc -l");
        EXPECT_EQ(world->output,
            "HOME=" + user.home + "\nLC_ALL=C.UTF-8\nLOGNAME=" + user.name
                + "\nPATH=/usr/bin:/bin:/usr/sbin:/sbin\nPWD=/\nUSER=" + user.name + "\n0022\n/\n4\n");
        EXPECT_EQ(shell->run("sed -nE 's/^(Sig(Blk|Ign)).*(.{4})$/\\1 \\3/p' /proc/self/status")->output,
            "SigBlk 0000\nSigIgn 0000\n");
        const auto failed = shell->run("echo out; echo err >&2; exit 7");
        EXPECT_EQ(failed->output + failed->errors, "out\nerr\n");
        EXPECT_EQ(failed->status, 7);
        EXPECT_EQ(shell->run("kill -9 $$")->status, 128 + 9);
        EXPECT_EQ(shell->run("echo 'c\\td'")->output, "c\td\n") << "in the scripts' dialect";
    }
}

TEST_F(ShellsTest, keepAMebibyteOfEachStreamAndWaitForNothingInTheBackground)
{
    const std::string keepId = " & echo $! > " + scratch.path() + "/id; ";
    for (const auto& shell : shells()) {
        const auto result = shell->run("(sleep 600; echo late)" + keepId
            + "head -c 5000000 /dev/zero | tr '\\0' o; head -c 3000000 /dev/zero | tr '\\0' e >&2; exit 2");
        EXPECT_EQ(result->status, 2);
        EXPECT_EQ(result->output, std::string(1 << 20, 'o'));
        EXPECT_EQ(result->errors, std::string(1 << 20, 'e'));
        EXPECT_EQ(shell->run("kill $(cat " + scratch.path() + "/id)")->status, 0);
        // It may have ended by itself before it is killed: nobody reads what it writes.
        EXPECT_EQ(shell->run("yes" + keepId + "sleep 0.1")->status, 0);
        shell->run("kill $(cat " + scratch.path() + "/id)");
    }
}

TEST_F(ShellsTest, sayWhatBecameOfACommandThatCannotBeRun)
{
    const std::string tooLong = ": " + std::string(200000, 'x');
    const auto [local, runners] = shells();
    EXPECT_EQ(local->run(tooLong).error().message, "The command could not be run: Argument list too long.");
    EXPECT_EQ(runners->run(tooLong)->errors, "The command could not be run: Argument list too long.\n");
}

TEST_F(ShellsTest, ofTheRunnerAreASessionThatOutlivesSignals)
{
    const auto shell = startShell();
    const std::string id = std::to_string(runner) + "\n";
    EXPECT_EQ(shell->run("cut -d ' ' -f 6 /proc/$PPID/stat; echo $PPID")->output, id + id);
    EXPECT_EQ(shell->run("for name in PIPE HUP INT TERM QUIT TSTP; do kill -$name $PPID; done")->status, 0);
    EXPECT_EQ(shell->run("kill -9 $PPID").error().number, script::error_number::connectionInvalid);
    EXPECT_EQ(shell->run("true").error().number, script::error_number::connectionInvalid);
}

TEST_F(ShellsTest, ofTheRunnerEndWithTheConversationAndWithAnythingThatBreaksItsRules)
{
    using namespace std::string_literals;
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
