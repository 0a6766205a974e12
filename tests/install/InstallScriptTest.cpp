#include "install/InstallScript.h"
#include "install/ElementKind.h"
#include "install/ScriptEscapes.h"

#include "tests/ScratchFolder.h"

#include <gmock/gmock.h>

namespace corvellane {
namespace {

using testing::HasSubstr;
using testing::Not;

const HostPaths hosts{"/Applications/Corvellane/",
    "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/",
    "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/",
    "/Users/user/Library/Application Support/Adobe/Lightroom/"};

std::size_t count(const std::string& text, const std::string& part)
{
    std::size_t found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

TEST(InstallScript, isTheKnownTextForOneElementOfEachKind)
{
    const std::string products = "/Volumes/Installer/Installer.app/Contents/Resources/Products/";
    const std::string script = composeInstallScript(hosts,
        {products + "Velvetgrain Tessellane/Velvetgrain Tessellane 2.plugin",
            products + "Velvetgrain Photo/Velvetgrain.plugin",
            products + "Velvetgrain Lightroom/Velvetgrain 3 Lightroom"});
    EXPECT_EQ(script.size(), 3723U);
    EXPECT_EQ(script, readFile(TEST_DATA "/three-kinds.applescript"));
}

TEST(InstallScript, onlyMakesTheMakersFolderWhenThereAreNoElements)
{
    EXPECT_EQ(composeInstallScript(hosts, {}),
        "try\n"
        "do shell script \"mkdir -p \\\"/Applications/Corvellane/\\\"\" with administrator privileges\n"
        "\n"
        "on error errMsg\n"
        "return errMsg\n"
        "end try\n"
        "return \"Ok\"");
}

TEST(InstallScript, createsTheFolderOfTheFirstLinkedKindOnly)
{
    const std::string makesPhoto = R"(mkdir -p \"/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/\")";
    const std::string makesVideo = R"(MediaCore/Corvellane/\"" with)";
    const auto photoTwice = composeInstallScript(hosts, {"/p/a.plugin", "/p/b.plugin"});
    EXPECT_EQ(count(photoTwice, makesPhoto), 1U);
    const auto photoFirst = composeInstallScript(hosts, {"/p/a.plugin", "/p/Tessellane.plugin"});
    EXPECT_THAT(photoFirst, HasSubstr(makesPhoto));
    EXPECT_THAT(photoFirst, Not(HasSubstr(makesVideo)));
    const auto lightroomFirst = composeInstallScript(hosts, {"/p/Lightroom", "/p/Tessellane.plugin", "/p/a.plugin"});
    EXPECT_THAT(lightroomFirst, HasSubstr(makesVideo));
    EXPECT_THAT(lightroomFirst, Not(HasSubstr(makesPhoto)));
    EXPECT_LT(lightroomFirst.find("Modules"), lightroomFirst.find(makesVideo));
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
