#include "platform/posix/ExecutableBundle.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/posix/QueueDispatcher.h"
#include "platform/posix/RootOnly.h"
#include "platform/posix/UserAccount.h"
#include "tests/ScratchFolder.h"

#include <gmock/gmock.h>

#include <pwd.h>
#include <sys/stat.h>
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
    const auto path = [](const std::string& prefix, SearchDirectory directory, SearchDomain domain) {
        return PosixStandardFolders(prefix).searchPaths(directory, domain);
    };
    using testing::ElementsAre;
    EXPECT_THAT(path("", SearchDirectory::applicationSupport, SearchDomain::user),
        ElementsAre(home + "/Library/Application Support"));
    EXPECT_THAT(path("/x y", SearchDirectory::applicationSupport, SearchDomain::user),
        ElementsAre("/x y" + home + "/Library/Application Support"));
    EXPECT_THAT(path("/x y", SearchDirectory::applicationSupport, SearchDomain::local),
        ElementsAre("/x y/Library/Application Support"));
    EXPECT_THAT(path("", SearchDirectory::applications, SearchDomain::local), ElementsAre("/Applications"));
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
    EXPECT_EQ(unknown.folder("Products"), std::nullopt);
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
    dispatcher.submitToBackground([&, main = std::this_thread::get_id()] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        steps.emplace_back(std::this_thread::get_id() == main ? "on the main thread" : "background");
        group->leave();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        dispatcher.submitToMain([&] { steps.emplace_back("last"); });
    });
    group->wait();
    EXPECT_THAT(steps, testing::ElementsAre("background"));
    dispatcher.runMainQueue();
    EXPECT_THAT(steps, testing::ElementsAre("background", "first", "last"));
}

TEST(RootOnly, believesInNothingThatSomebodyElseCouldChange)
{
    EXPECT_TRUE(onlyRootCanChange("/bin/sh"));
    EXPECT_FALSE(onlyRootCanChange("/tmp"));
    EXPECT_FALSE(onlyRootCanChange("/gone"));
    EXPECT_FALSE(onlyRootCanChangeTree("/gone"));
    const ScratchFolder scratch;
    if (!hasRootRights()) {
        EXPECT_FALSE(onlyRootCanChange(scratch.path()));
        GTEST_SKIP() << "only root can make what is root's alone";
    }
    scratch.write("tree/inner/file", "");
    const std::string tree = scratch.path() + "/tree";
    const std::string file = tree + "/inner/file";
    EXPECT_TRUE(onlyRootCanChangeTree(tree)) << "the sticky bit of the folder above will do";
    for (const mode_t mode : {0777U, 01777U, 0775U, 0757U}) {
        chmod((tree + "/inner").c_str(), mode);
        EXPECT_FALSE(onlyRootCanChangeTree(tree)) << std::oct << mode;
        EXPECT_EQ(onlyRootCanChange(file), mode == 01777U) << std::oct << mode;
    }
    chmod((tree + "/inner").c_str(), 0755);
    chmod(tree.c_str(), 0777);
    EXPECT_FALSE(onlyRootCanChangeTree(tree));
    chmod(tree.c_str(), 0755);
    ASSERT_EQ(symlink("/tmp", (tree + "/link").c_str()), 0);
    EXPECT_TRUE(onlyRootCanChangeTree(tree)) << "where a link in there leads is its own affair";
    EXPECT_FALSE(onlyRootCanChange(tree + "/link"));
    ASSERT_EQ(lchown((tree + "/link").c_str(), 65534, 65534), 0);
    EXPECT_FALSE(onlyRootCanChangeTree(tree));
    ASSERT_EQ(chown(tree.c_str(), 65534, 65534), 0);
    EXPECT_FALSE(onlyRootCanChange(file)) << "a folder above it can be exchanged";
}

} // namespace
} // namespace corvellane
