#include "install/InstallScript.h"
#include "install/ElementKind.h"
#include "install/ScriptEscapes.h"

#include "tests/ScratchFolder.h"

#include <gmock/gmock.h>

namespace corvellane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const HostPaths hosts{"/Applications/Corvellane/",
    "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/",
    "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/",
    "/Users/user/Library/Application Support/Adobe/Lightroom/"};

/// The folders that the script for the elements creates, in its order.
std::vector<std::string> foldersFor(const std::vector<std::string>& elements)
{
    const std::string command = R"(do shell script "mkdir -p \")";
    const std::string script = composeInstallScript({"/A/", "/V/", "/P/", "/L/"}, elements);
    std::vector<std::string> folders;
    for (auto at = script.find(command); at != std::string::npos; at = script.find(command, at + 1)) {
        const auto begin = at + command.size();
        folders.push_back(script.substr(begin, script.find('\\', begin) - begin));
    }
    return folders;
}

TEST(InstallScript, isTheKnownTextForOneElementOfEachKind)
{
    const std::string products = "/Volumes/Installer/Installer.app/Contents/Resources/Products/";
    EXPECT_EQ(composeInstallScript(hosts,
                  {products + "Velvetgrain Tessellane/Velvetgrain Tessellane 2.plugin",
                      products + "Velvetgrain Photo/Velvetgrain.plugin",
                      products + "Velvetgrain Lightroom/Velvetgrain 3 Lightroom"}),
        readFile(TEST_DATA "/three-kinds.applescript"));
}

TEST(InstallScript, createsTheFolderOfTheFirstLinkedKindOnly)
{
    EXPECT_THAT(foldersFor({}), ElementsAre("/A/"));
    EXPECT_THAT(foldersFor({"/p/a.plugin", "/p/b.plugin", "/p/Tessellane.plugin"}), ElementsAre("/A/", "/P/"));
    EXPECT_THAT(foldersFor({"/p/Tessellane.plugin", "/p/a.plugin"}), ElementsAre("/A/", "/V/"));
    EXPECT_THAT(foldersFor({"/p/Lightroom", "/p/Tessellane.plugin", "/p/a.plugin"}),
        ElementsAre("/A/", "/L/External Editor Presets/Corvellane/", "/L/Export Presets/Corvellane Velvetgrain 4/",
            "/L/Modules/", "/V/"));
}

TEST(InstallScript, goesByTheWholePathButForTheSupersededBundlesByTheNameAndEscapesBoth)
{
    const std::string script = composeInstallScript(
        {"/A`/", "/V\"/", "", "/L$/"}, {"/$ 2/Tessellane/\".plugin", "/Velvetgrain 3 Lightroom/\\"});
    EXPECT_THAT(script, HasSubstr(R"(
do shell script "mkdir -p \"/V\\\"/\"" with administrator privileges
do shell script "cp -R -f \"/\\$ 2/Tessellane/\\\".plugin\" \"/A\\`/\"" with administrator privileges
do shell script "rm -R -f \"/V\\\"/Glintmotion.plugin\"" with administrator privileges
do shell script "rm -R -f \"/V\\\"/Velvetgrain.plugin\"" with administrator privileges
do shell script "ln -f -h -s \"/A\\`/\\\".plugin\" \"/V\\\"/\\\".plugin\""  with administrator privileges
do shell script "cp -R -f \"/Velvetgrain 3 Lightroom/\\\\\" \"/A\\`/\"" with administrator privileges
do shell script "mkdir -p \"/L\\$/External Editor Presets/Corvellane/\"" with administrator privileges
)"));
    EXPECT_THAT(script, HasSubstr(R"(echo \"/A\\`/\\\\\\\\\" > \"/A\\`/\\\\/velvetgrain3.lrdevplugin/Path.txt\")"));
    EXPECT_THAT(script, HasSubstr(R"(Path = \\\"/A\\`/\\\\\\\\\\\\\\\\/Velvetgrain3.app\\\")"));
}

TEST(ElementKind, isDecidedByWordsInTheWholePath)
{
    EXPECT_EQ(kindOf("/Lightroom Tessellane/a"), ElementKind::lightroom);
    EXPECT_EQ(kindOf("/lightroom/a"), ElementKind::photo);
    EXPECT_EQ(kindOf("/Tessellane/a"), ElementKind::video);
    EXPECT_EQ(kindOf("/tessellane/a"), ElementKind::photo);
    EXPECT_EQ(generationOf("/Velvetgrain 3/Lightroom").digit, "3");
    EXPECT_EQ(generationOf("/Velvetgrain 4 Lightroom").presetIdentifier, "E70E900E-6A66-4882-B59A-2B05764B1430");
    EXPECT_EQ(generationOf("/Lightroom").digit, "4");
    EXPECT_EQ(supersededSuffix("Velvetgrain Tessellane.plugin"), "");
    EXPECT_EQ(supersededSuffix("X 12.plugin"), "2");
}

TEST(ScriptEscapes, wrapTheLevelsFromTheInsideOut)
{
    const std::string plain = "/Users/Jos\xC3\xA9/100%25 [Film]'s & (more) \xFF";
    for (const auto& escape : {asArgument, asEchoedText, asEchoedLuaString}) {
        EXPECT_EQ(escape(plain), plain);
    }
    EXPECT_EQ(asArgument("a\"$`\\\n"), "a\\\\\\\"\\\\$\\\\`\\\\\\\\\n");
    EXPECT_EQ(asEchoedText("\\"), std::string(8, '\\'));
    EXPECT_EQ(asEchoedLuaString("\\"), std::string(16, '\\'));
    EXPECT_EQ(asEchoedLuaString("\n\r"), std::string(8, '\\') + "n" + std::string(8, '\\') + "r");
}

} // namespace
} // namespace corvellane
