#include "platform/posix/ChildProcess.h"

#include "platform/posix/ProcessSetup.h"

#include <gtest/gtest.h>

#include <fcntl.h>

#include <cerrno>
#include <csignal>

namespace corvellane {
namespace {

/// Runs a command of the shell and appends what it writes to `output`: its status, -1 when it cannot be started.
int run(const std::string& command, std::string& output, SpawnExtension extension = nullptr)
{
    const FileDescriptor nothing(open("/dev/null", O_RDONLY | O_CLOEXEC));
    Pipe pipe = makePipe();
    const auto child = startChild({{"/bin/sh", "-c", command}, {"A=1", "B=two words"}},
        {nothing.get(), pipe.writeEnd.get(), pipe.writeEnd.get()}, extension);
    pipe.writeEnd.close();
    const int status = child ? exitStatusOf(*child) : -1;
    drain(pipe.readEnd, output);
    return status;
}

TEST(ChildProcess, hasItsStreamsItsEnvironmentAndNothingOfOurs)
{
    std::string output;
    const Pipe ours = makePipe();
    const std::string descriptors = std::to_string(ours.readEnd.get()) + " " + std::to_string(ours.writeEnd.get());
    EXPECT_EQ(
        run("echo $A $B $HOME; cat; echo err >&2; cd /dev/fd; ls " + descriptors + " 2>/dev/null; exit 7", output), 7);
    EXPECT_EQ(output, "1 two words\nerr\n");
}

TEST(ChildProcess, hasAllSignalsAtTheirDefaults)
{
    std::signal(SIGTERM, SIG_IGN);
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, &before);
    std::string output;
    EXPECT_EQ(run("kill -TERM $$", output), 128 + SIGTERM);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    std::signal(SIGTERM, SIG_DFL);
}

TEST(ChildProcess, isNotStartedWithoutAllThatItIsToHave)
{
    for (const StandardStreams& streams : {StandardStreams{-1, 1, 2}, {0, -1, 2}, {0, 1, -1}}) {
        EXPECT_EQ(startChild({{"/bin/true"}, {}}, streams).error().number, EBADF);
    }
    const auto missing = startChild({{"/nowhere/program"}, {}}, {0, 1, 2});
    EXPECT_EQ(missing.error().number, ENOENT);
    EXPECT_EQ(missing.error().message, "No such file or directory");
    std::string output;
    const auto open
        = [](auto& actions) { posix_spawn_file_actions_addopen(&actions, 9, "/nowhere/file", O_RDONLY, 0); };
    EXPECT_EQ(run("true", output, open), -1);
}

TEST(ChildProcess, endsWithAStatusOnlyWhereSomebodyHeardOfTheEnd)
{
    std::string output;
    std::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(run("exit 3", output), statusUnknown);
    setUpProcess();
    EXPECT_EQ(run("exit 3", output), 3);
}

TEST(Drain, takesWhatIsThereUpToALimitAndClosesAtTheEnd)
{
    Pipe pipe = makePipe();
    std::string kept(mostKeptOfAStream - 2, ' ');
    drain(pipe.readEnd, kept);
    EXPECT_EQ(kept.size(), mostKeptOfAStream - 2) << "an open stream with nothing in it is not waited for";
    ASSERT_EQ(write(pipe.writeEnd.get(), "abc", 3), 3);
    drain(pipe.readEnd, kept);
    EXPECT_TRUE(pipe.readEnd.isOpen());
    pipe.writeEnd.close();
    drain(pipe.readEnd, kept);
    EXPECT_FALSE(pipe.readEnd.isOpen());
    EXPECT_EQ(kept, std::string(mostKeptOfAStream - 2, ' ') + "ab");
}

} // namespace
} // namespace corvellane
