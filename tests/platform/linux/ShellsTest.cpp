#include "helper/RunnerMessages.h"
#include "platform/linux/LinuxShell.h"
#include "platform/posix/ChildProcess.h"
#include "tests/ScratchFolder.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <array>
#include <csignal>
#include <utility>

namespace corvellane {
namespace {

class LinuxShellTest : public testing::Test {
protected:
    LinuxShellTest()
    {
        setenv("LEAKED", "yes", 1);
        setenv("HOME", "/gone", 1);
    }

    script::CommandResult run(const std::string& command) { return LinuxShell(realUser()).run(command).value(); }

    ScratchFolder scratch;
    /// What is inherited here, a shell has to put away itself.
    FileDescriptor leaked{dup(STDERR_FILENO)};
};

TEST_F(LinuxShellTest, runsCommandsInAWorldOfTheirOwn)
{
    const UserAccount user = realUser();
    EXPECT_EQ(run("env | sort; umask; pwd; cat; ls /proc/self/fd | wc -l").output,
        "HOME=" + user.home + "\nLC_ALL=C.UTF-8\nLOGNAME=" + user.name
            + "\nPATH=/usr/bin:/bin:/usr/sbin:/sbin\nPWD=/\nUSER=" + user.name + "\n0022\n/\n4\n");
    EXPECT_EQ(
        run("sed -nE 's/^(Sig(Blk|Ign)).*(.{4})$/\\1 \\3/p' /proc/self/status").output, "SigBlk 0000\nSigIgn 0000\n");
    const auto failed = run("echo out; echo err >&2; exit 7");
    EXPECT_EQ(failed.output + failed.errors, "out\nerr\n");
    EXPECT_EQ(failed.status, 7);
    EXPECT_EQ(run("echo 'c\\td'").output, "c\td\n") << "in the scripts' dialect";
}

TEST_F(LinuxShellTest, saysWhatBecameOfACommandThatDidNotEndByItself)
{
    const auto killed = run("echo begun >&2; kill -9 $$");
    EXPECT_EQ(killed.status, 128 + 9);
    EXPECT_EQ(killed.errors, "begun\nThe command was ended by the signal SIGKILL: echo begun >&2; kill -9 $$\n");
    EXPECT_EQ(run(": " + std::string(200000, 'x')).errors, "The command could not be run: Argument list too long.\n");
    const auto loud = run("head -c 2000000 /dev/zero | tr '\\0' e >&2; kill -9 $$ # " + std::string(1000, 'x'));
    EXPECT_TRUE(loud.errors.ends_with("xxx\n"));
    EXPECT_LE(loud.errors.size(), runner::longestText) << "what the runner can reply";
}

TEST_F(LinuxShellTest, keepsTheBeginningAndTheEndOfEachStreamAndWaitsForNothingInTheBackground)
{
    const std::string keepId = " & echo $! > " + scratch.path() + "/id; ";
    const auto result = run("(sleep 600; echo late)" + keepId
        + "echo first; head -c 5000000 /dev/zero | tr '\\0' o; echo last; head -c 300000 /dev/zero | tr '\\0' e >&2");
    EXPECT_TRUE(result.output.starts_with("first\nooo"));
    EXPECT_TRUE(result.output.ends_with("oooolast\n"));
    const auto line = result.output.find("\n[") + 2;
    const auto missing = std::stoul(result.output.substr(line));
    const std::string words = "\n[" + std::to_string(missing) + " bytes are missing here]\n";
    EXPECT_EQ(result.output.substr(line - 2, words.size()), words);
    EXPECT_EQ(result.output.size() - words.size() + missing, 5000011U);
    EXPECT_LE(result.output.size(), runner::longestText);
    EXPECT_EQ(result.errors, std::string(300000, 'e'));
    EXPECT_EQ(run("kill $(cat " + scratch.path() + "/id)").status, 0);
    // It may have ended by itself before it is killed: nobody reads what it writes.
    EXPECT_EQ(run("yes" + keepId + "sleep 0.1").status, 0);
    run("kill $(cat " + scratch.path() + "/id)");
}

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
        runner = *startChild(
            {{COMMAND_RUNNER, task}, {"PKEXEC_UID=" + user}}, {theirs.get(), theirs.get(), nothing.get()});
        return FileDescriptor(ends[0]);
    }

    /// What the runner says to these bytes and no more, and what it ends with.
    std::pair<std::string, int> answerTo(const std::string& bytes, const std::string& user = std::to_string(getuid()))
    {
        const FileDescriptor channel = start(user);
        send(channel.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        shutdown(channel.get(), SHUT_WR);
        return {restOf(channel), exitStatusOf(runner)};
    }

    static std::string restOf(const FileDescriptor& channel)
    {
        std::string said;
        std::array<char, 4096> buffer;
        ssize_t count = 0;
        while ((count = read(channel.get(), buffer.data(), buffer.size())) > 0) {
            said.append(buffer.data(), static_cast<std::size_t>(count));
        }
        return said;
    }

    static std::string request(const std::string& command)
    {
        std::string bytes;
        runner::writeText(command, [&](std::string_view part) { bytes += part; });
        return bytes;
    }

    static std::string refusal(const std::string& reason)
    {
        std::string bytes;
        runner::writeReply({126, {}, reason + "\n"}, [&](std::string_view part) { bytes += part; });
        return bytes;
    }

    std::string task = "install";
    pid_t runner = -1;
    const std::string up{runner::up};
};

TEST_F(RunnerTest, refusesWhatIsNoCommandOfAnInstallation)
{
    for (const std::string command : {"id", "", "rm -R -f \"$HOME\"", "mkdir -p \"/Applications/Corvellane/\"; id"}) {
        EXPECT_EQ(
            answerTo(request(command)).first, up + refusal("“" + command + "” is not a command of an installation."));
    }
    for (const std::string path : {"/etc/passwd", "/Applications/Corvellane/../x"}) {
        EXPECT_EQ(answerTo(request("rm -R -f \"" + path + "\"")).first,
            up + refusal("“" + path + "” does not lie in a folder of an installation."));
    }
}

TEST_F(RunnerTest, onlyTakesAwayForWhoHasAgreedToARemoval)
{
    const std::string element = "\"/Applications/Corvellane/gone\"";
    const std::string removing = request("rm -R -f " + element)
        + request("[ \"$(readlink -n " + element + ")\" != " + element + " ] || rm -f " + element);
    task = "remove";
    const std::string done = answerTo(removing).first;
    for (const std::string& command : {"mkdir -p " + element, "cp -R -f " + element + " \"/Applications/Corvellane/\"",
             "ln -f -h -s " + element + " " + element, "echo \"x\" > " + element}) {
        EXPECT_EQ(answerTo(request(command)).first, up + refusal("“" + command + "” is not a command of a removal."));
    }
    task = "install";
    EXPECT_EQ(answerTo(removing).first, done) << "an installation removes what it replaces";
    for (const std::string other : {"", "list", "/opt/products"}) {
        task = other;
        EXPECT_EQ(answerTo(removing), std::pair(std::string(), 2)) << other;
    }
}

TEST_F(RunnerTest, isASessionThatOutlivesSignals)
{
    const FileDescriptor channel = start();
    std::string said(up.size(), ' ');
    ASSERT_EQ(recv(channel.get(), said.data(), said.size(), MSG_WAITALL), static_cast<ssize_t>(up.size()));
    EXPECT_EQ(getsid(runner), runner);
    for (const int signal : {SIGPIPE, SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGTSTP}) {
        kill(runner, signal);
    }
    const std::string command = request("id");
    send(channel.get(), command.data(), command.size(), MSG_NOSIGNAL);
    shutdown(channel.get(), SHUT_WR);
    EXPECT_EQ(restOf(channel), refusal("“id” is not a command of an installation."));
    EXPECT_EQ(exitStatusOf(runner), 0);
}

TEST_F(RunnerTest, endsWithTheConversationAndWithAnythingThatBreaksItsRules)
{
    using namespace std::string_literals;
    using Ending = std::pair<std::string, int>;
    const Ending wordless{up, 0};
    EXPECT_EQ(answerTo(""), wordless);
    EXPECT_EQ(answerTo("\0\0\0"s), wordless);
    EXPECT_EQ(answerTo("\0\0\0\3id"s), wordless) << "cut off";
    EXPECT_EQ(answerTo(request("id\0"s)), wordless) << "NUL in it";
    EXPECT_EQ(answerTo("\0\x10\0\1"s + std::string((1 << 20) + 1, ' ')), wordless) << "too long";
    for (const char* const user : {"", "nobody", "-1", "4000000", "0x", "99999999999"}) {
        EXPECT_EQ(answerTo("", user), Ending("", 2)) << user;
    }
}

} // namespace
} // namespace corvellane
