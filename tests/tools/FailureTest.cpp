#include "app/System.h"
#include "install/InstallScript.h"
#include "platform/ScriptService.h"
#include "platform/linux/RehearsalPrompt.h"
#include "tests/ScratchFolder.h"
#include "tools/FolderTree.h"

#include <gmock/gmock.h>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// Scripts of three elements, one of each kind, and what runs them with one command failing.
class FailureTest : public testing::Test {
protected:
    FailureTest()
    {
        for (const std::string element : {"A.plugin/x", "Tessellane 2.plugin/x",
                 "Velvetgrain 3 Lightroom/Velvetgrain3.app/x", "Velvetgrain 3 Lightroom/velvetgrain3.lrdevplugin/x",
                 "Velvetgrain 3 Lightroom/Corvellane Velvetgrain 3/x"}) {
            scratch.write("from/" + element, element);
        }
    }

    std::string run(const std::string& into, int failing)
    {
        const std::string base = scratch.path() + "/" + into + "/";
        fs::create_directories(base + "photo");
        const HostPaths hosts{base + "app/", base + "video/", base + "photo/", base + "lr/"};
        const std::string from = scratch.path() + "/from/";
        const std::string script = composeInstallScript(
            hosts, {from + "Tessellane 2.plugin", from + "A.plugin", from + "Velvetgrain 3 Lightroom"});
        commandsUntilFailure = failing;
        begun.clear();
        target = into;
        System system;
        system.prompt = std::make_shared<FailingPrompt>(
            *this, runner::InstallFolders{from, hosts.application, hosts.video, hosts.photo, hosts.lightroom});
        return system.platform().scripts.create(script)->execute().result.value().text.value();
    }

    /// Paths, types and links, with one folder's name for the other's.
    std::vector<std::string> treeOf(const std::string& folder)
    {
        const std::string path = scratch.path() + "/" + folder;
        auto lines = describeTree(path, path);
        for (std::string& line : lines) {
            if (const auto at = line.find("/" + folder + "/"); at != std::string::npos) {
                line.replace(at, folder.size() + 2, "/…/");
            }
            line.resize(std::min(line.find(" ("), line.size()));
        }
        return lines;
    }

    /// Has one command fail before it does anything.
    struct FailingShell : script::Shell {
        FailingShell(FailureTest& owner, std::shared_ptr<script::Shell> real)
            : test(owner)
            , shell(std::move(real))
        {
        }
        Expected<script::CommandResult> run(const std::string& command) override
        {
            test.begun.push_back(test.treeOf(test.target));
            return test.commandsUntilFailure-- == 0 ? script::CommandResult{1, {}, "failed"} : shell->run(command);
        }
        FailureTest& test;
        std::shared_ptr<script::Shell> shell;
    };

    struct FailingPrompt : RehearsalPrompt {
        FailingPrompt(FailureTest& owner, runner::InstallFolders folders)
            : RehearsalPrompt(std::move(folders))
            , test(owner)
        {
        }
        Expected<std::shared_ptr<script::Shell>> authorize(const std::vector<std::string>& commands) override
        {
            return RehearsalPrompt::authorize(commands).map([this](const std::shared_ptr<script::Shell>& shell) {
                return std::shared_ptr<script::Shell>(std::make_shared<FailingShell>(test, shell));
            });
        }
        FailureTest& test;
    };

    ScratchFolder scratch;
    int commandsUntilFailure = -1;
    std::string target;
    /// What each command found.
    std::vector<std::vector<std::string>> begun;
};

TEST_F(FailureTest, stopsAtAnyFailingCommandAndIsHealedByASecondRun)
{
    ASSERT_EQ(run("whole", -1), "Ok");
    const auto steps = begun;
    EXPECT_EQ(steps.size(), 19);
    const auto whole = treeOf("whole");
    for (std::size_t failing = 0; failing < steps.size(); ++failing) {
        const std::string into = "run " + std::to_string(failing);
        EXPECT_EQ(run(into, static_cast<int>(failing)), "failed");
        EXPECT_EQ(begun.size(), failing + 1) << "nothing runs after the command that failed";
        EXPECT_EQ(treeOf(into), steps[failing]) << "what was done before stays";
        EXPECT_EQ(run(into, -1), "Ok");
        EXPECT_EQ(treeOf(into), whole) << failing;
    }
}

TEST_F(FailureTest, findsAVanishedElementBeforeAnythingIsDoneAndAVanishedPartWhenItsTurnComes)
{
    const std::string from = scratch.path() + "/from/";
    fs::remove_all(from + "Velvetgrain 3 Lightroom/Corvellane Velvetgrain 3");
    EXPECT_THAT(run("into", -1), HasSubstr("/app/Velvetgrain 3 Lightroom/Corvellane Velvetgrain 3/.': No such file"));
    EXPECT_TRUE(fs::exists(scratch.path() + "/into/video/Tessellane 2.plugin/x"));
    fs::remove_all(from + "A.plugin");
    EXPECT_EQ(run("nothing", -1), "“" + from + "A.plugin” cannot be read: No such file or directory.");
    EXPECT_FALSE(fs::exists(scratch.path() + "/nothing/app"));
}

} // namespace
} // namespace corvellane
