#include "platform/posix/ExecutableBundle.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/posix/QueueDispatcher.h"
#include "platform/posix/UserAccount.h"
#include "tests/ScratchFolder.h"

#include <gmock/gmock.h>

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <thread>

namespace corvellane {
namespace {

TEST(StandardFolders, areInTheHomeOfThePasswordDatabaseWhateverTheEnvironmentSays)
{
    setenv("HOME", "/elsewhere", 1);
    const std::string home = getpwuid(getuid())->pw_dir;
    const bool isRoot = hasRootRights();
    ASSERT_TRUE(!isRoot || seteuid(65534) == 0);
    EXPECT_EQ(realUser().home, home) << "whoever the program has the rights of";
    EXPECT_FALSE(hasRootRights());
    ASSERT_TRUE(!isRoot || seteuid(0) == 0);
    EXPECT_EQ(realUser().name, getpwuid(getuid())->pw_name);
    setenv("SUDO_UID", "1", 1);
    EXPECT_EQ(realUser().id, isRoot ? 1 : getuid()) << "the person who called sudo, if it is sudo's word";
    unsetenv("SUDO_UID");
    using enum SearchDirectory;
    using enum SearchDomain;
    const auto path = [](const std::string& prefix, SearchDirectory directory, SearchDomain domain) {
        return PosixStandardFolders(prefix).searchPaths(directory, domain).at(0);
    };
    EXPECT_EQ(path("", applicationSupport, user), home + "/Library/Application Support");
    EXPECT_EQ(path("/x y", applicationSupport, user), "/x y" + home + "/Library/Application Support");
    EXPECT_EQ(path("/x y", applicationSupport, local), "/x y/Library/Application Support");
    EXPECT_EQ(path("", applications, local), "/Applications");
}

TEST(ExecutableBundle, hasItsResourcesBesideTheFolderOfTheExecutable)
{
    const ScratchFolder scratch;
    scratch.write("Resources/Logo.svg", "");
    const ExecutableBundle bundle(scratch.path() + "/bin/program");
    EXPECT_EQ(bundle.program("runner"), scratch.path() + "/bin/runner");
    EXPECT_EQ(bundle.folder("Gone"), scratch.path() + "/Resources/Gone");
    EXPECT_EQ(bundle.file("Logo", "svg"), scratch.path() + "/Resources/Logo.svg");
    EXPECT_EQ(bundle.file("Logo", "png"), std::nullopt);
    const ExecutableBundle unknown(std::nullopt);
    EXPECT_EQ(unknown.program("runner"), std::nullopt);
    EXPECT_EQ(unknown.file("Logo", "svg"), std::nullopt);
}

TEST(ProcessSetup, fillsTheStandardStreamsAndEndsNobodyForAReaderThatIsGone)
{
    const auto isSetUp = [] {
        std::array<int, 2> ends{};
        std::signal(SIGPIPE, SIG_DFL);
        const bool isClosed = close(STDIN_FILENO) == 0 && close(STDOUT_FILENO) == 0 && close(STDERR_FILENO) == 0;
        setUpProcess();
        const bool isFree = pipe(ends.data()) == 0 && ends[0] > STDERR_FILENO && close(ends[0]) == 0;
        return isClosed && isFree && write(STDOUT_FILENO, "x", 1) == 1 && write(ends[1], "x", 1) == -1;
    };
    EXPECT_EXIT(_exit(isSetUp() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(QueueDispatcher, waitsForWhatIsInAGroupAndForWhatTheBackgroundLeadsTo)
{
    QueueDispatcher dispatcher;
    const auto group = dispatcher.makeWaitGroup();
    group->wait();
    std::vector<std::string> steps;
    group->enter();
    dispatcher.submitToMain([&] { steps.emplace_back("first"); });
    dispatcher.submitToBackground([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        steps.emplace_back("background");
        group->leave();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        dispatcher.submitToMain([&] { steps.emplace_back("last"); });
    });
    group->wait();
    EXPECT_THAT(steps, testing::ElementsAre("background"));
    dispatcher.runMainQueue();
    EXPECT_THAT(steps, testing::ElementsAre("background", "first", "last"));
}

} // namespace
} // namespace corvellane
