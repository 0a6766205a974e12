#include "tests/FakePlatform.h"
#include "tests/ScratchFolder.h"
#include "tools/FolderTree.h"
#include "tools/Rehearsal.h"

#include <gmock/gmock.h>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// Names that a shell, a script or a preset would take for something else.
std::vector<std::string> hostileNames()
{
    std::string longName = "255 ";
    while (longName.size() + 2 <= 255) {
        longName += "é";
    }
    longName.resize(255, 'x');
    return {"q\"uote", "tick`touch pwned`tick", "sub$(touch pwned)", "$HOME ${PATH}", "\"; touch pwned; \"",
        "'; touch pwned; '", "trailing\\", "\\c", "\\0101\\x41\\n", "line\nfeed", "carriage\rreturn", "-dash", "--help",
        "*?[a-z]", "a & b | c > d", "100%25 %s", "tab\tand  spaces ", "#(*--\xC2\xAC", longName, "bytes \xFF\xFE\x80"};
}

/// A folder with a product of one element, and what installs it below another folder.
class RealInstall {
public:
    /// `kind` is a word that decides the kind from a folder above everything else.
    RealInstall(const std::string& kind, const std::string& name)
        : elementPath(scratch.path() + "/" + kind + "/" + name + "/Products/" + name + "/" + name)
        , into(scratch.path() + "/into " + name.substr(0, 200))
    {
        const std::string element = elementPath.substr(scratch.path().size() + 1);
        scratch.write(element + "/Corvellane Velvetgrain 3/preset", "preset");
        scratch.write(element + "/velvetgrain3.lrdevplugin/Info.lua", "info");
        scratch.write(element + "/Velvetgrain3.app/binary", std::string(70000, '\0'));
        fs::create_symlink("Velvetgrain3.app/binary", elementPath + "/link");
        for (const std::string& folder : {videoFolder(), photoFolder()}) {
            fs::create_directories(folder);
        }
    }

    std::string products() const { return fs::path(elementPath).parent_path().parent_path(); }
    std::string name() const { return fs::path(elementPath).filename(); }
    std::string installed() const { return into + "/Applications/Corvellane/" + name(); }
    std::string photoFolder() const { return into + "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/"; }
    std::string videoFolder() const
    {
        return into + "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/";
    }
    std::string lightroomFolder() const
    {
        return into + realUser().home + "/Library/Application Support/Adobe/Lightroom/";
    }

    /// The installation's message; empty when all went well.
    std::string run()
    {
        FakeConsole console;
        Rehearsal rehearsal(products(), into, console);
        rehearsal.install();
        EXPECT_EQ(rehearsal.settings().currentPage.get(), Page::summary);
        return *rehearsal.settings().logDetailsStr;
    }

    ScratchFolder scratch;
    std::string elementPath;
    std::string into;
};

/// What Lua makes of the preset's path to the editor.
std::string editorPathIn(const std::string& preset)
{
    PosixShell shell(realUser());
    const ScratchFolder scratch;
    fs::copy_file(preset, scratch.path() + "/preset.lua");
    auto result = shell.run(
        "lua5.4 -e 'dofile(\"" + scratch.path() + "/preset.lua\"); io.write(s.value.externalEditorFullPath)'");
    return std::get<CommandResult>(result).output;
}

TEST(RealInstall, installsPhotoAndVideoElementsOfAnyName)
{
    for (const std::string& name : hostileNames()) {
        for (const std::string kind : {"photo", "Tessellane"}) {
            RealInstall install(kind, name);
            ASSERT_EQ(install.run(), "") << name;
            EXPECT_EQ(describeTree(install.installed(), install.installed()),
                describeTree(install.elementPath, install.elementPath))
                << name;
            const std::string links = kind == "photo" ? install.photoFolder() : install.videoFolder();
            EXPECT_EQ(fs::read_symlink(links + name).native(), install.installed()) << name;
        }
    }
    EXPECT_FALSE(fs::exists("/pwned"));
}

TEST(RealInstall, installsLightroomElementsOfAnyName)
{
    for (const std::string& name : hostileNames()) {
        RealInstall install("Velvetgrain 3 Lightroom", name);
        ASSERT_EQ(install.run(), "") << name;
        const std::string lightroom = install.lightroomFolder();
        EXPECT_EQ(readFile(lightroom + "Export Presets/Corvellane Velvetgrain 3/preset"), "preset") << name;
        EXPECT_EQ(fs::read_symlink(lightroom + "Modules/velvetgrain3.lrdevplugin").native(),
            install.installed() + "/velvetgrain3.lrdevplugin");
        EXPECT_EQ(readFile(lightroom + "Modules/velvetgrain3.lrdevplugin/Path.txt"), install.installed() + "\n");
        EXPECT_EQ(editorPathIn(lightroom + "External Editor Presets/Corvellane/Corvellane Velvetgrain 3.lrtemplate"),
            install.installed() + "/Velvetgrain3.app");
    }
    EXPECT_FALSE(fs::exists("/pwned"));
}

/// Scripts of three elements, one of each kind, and what runs them with one command failing.
class FailureTest : public testing::Test, AdministratorPrompt, FileManager {
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
        InterpretedScriptService service({shell, *this, *this, folders});
        return service.create(script)->execute().result.value().text.value();
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
    struct FailingShell : Shell {
        explicit FailingShell(FailureTest& owner)
            : test(owner)
        {
        }
        std::variant<CommandResult, ScriptError> run(const std::string& command) override
        {
            test.begun.push_back(test.treeOf(test.target));
            return test.shell.run(test.commandsUntilFailure-- == 0 ? "ulimit -n 3; " + command : command);
        }
        FailureTest& test;
    };

    std::variant<std::unique_ptr<Shell>, ScriptError> authorize() override
    {
        return std::make_unique<FailingShell>(*this);
    }

    bool acceptsRequests() override { return false; }

    ScratchFolder scratch;
    PosixShell shell{realUser()};
    int commandsUntilFailure = -1;
    std::string target;
    /// What each command found.
    std::vector<std::vector<std::string>> begun;
    FakeFolders folders;
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
