#include "app/System.h"
#include "install/InstallScript.h"
#include "platform/ScriptService.h"
#include "platform/script/DirectPrompt.h"
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
        system.prompt = std::make_shared<script::DirectPrompt>(std::make_shared<FailingShell>(*this, system.shell));
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

    /// Runs one command without the means to open a file, so that it fails, and the others as they are.
    struct FailingShell : script::Shell {
        FailingShell(FailureTest& owner, std::shared_ptr<script::Shell> real)
            : test(owner)
            , shell(std::move(real))
        {
        }
        Expected<script::CommandResult> run(const std::string& command) override
        {
            test.begun.push_back(test.treeOf(test.target));
            return shell->run(test.commandsUntilFailure-- == 0 ? "ulimit -n 3; " + command : command);
        }
        FailureTest& test;
        std::shared_ptr<script::Shell> shell;
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
        EXPECT_THAT(run(into, static_cast<int>(failing)), HasSubstr("open"));
        EXPECT_EQ(begun.size(), failing + 1) << "nothing runs after the command that failed";
        EXPECT_EQ(treeOf(into), steps[failing]) << "what was done before stays";
        EXPECT_EQ(run(into, -1), "Ok");
        EXPECT_EQ(treeOf(into), whole) << failing;
    }
}

TEST_F(FailureTest, leavesWhatWasDoneBeforeAVanishedSource)
{
    fs::remove_all(scratch.path() + "/from/A.plugin");
    EXPECT_EQ(run("into", -1), "cp: cannot stat '" + scratch.path() + "/from/A.plugin': No such file or directory");
    EXPECT_TRUE(fs::exists(scratch.path() + "/into/video/Tessellane 2.plugin/x"));
    EXPECT_FALSE(fs::exists(scratch.path() + "/into/lr"));
}

} // namespace
} // namespace corvellane
