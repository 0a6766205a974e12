#include "install/InstallScript.h"
#include "install/ElementKind.h"

#include "tests/ScratchFolder.h"

namespace corvellane {
namespace {

TEST(InstallScript, isTheKnownTextForOneElementOfEachKind)
{
    const std::string products = "/Volumes/Installer/Installer.app/Contents/Resources/Products/";
    const HostPaths hosts{"/Applications/Corvellane/",
        "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/",
        "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/",
        "/Users/user/Library/Application Support/Adobe/Lightroom/"};
    EXPECT_EQ(composeInstallScript(hosts,
                  {products + "Velvetgrain Tessellane/Velvetgrain Tessellane 2.plugin",
                      products + "Velvetgrain Photo/Velvetgrain.plugin",
                      products + "Velvetgrain Lightroom/Velvetgrain 3 Lightroom"}),
        readFile(TEST_DATA "/three-kinds.applescript"));
}

/// A folder is created for the first linked kind only; "2" counts in the element's own name, other words anywhere.
TEST(InstallScript, isTheKnownTextForNamesToEscapeInAnotherOrder)
{
    EXPECT_EQ(composeInstallScript({"/A`/", "/V\"/", "/P/", "/L$/"},
                  {"/Velvetgrain 4 Lightroom/\\", "/a.plugin", "/$ 2/Tessellane/\".plugin"}),
        readFile(TEST_DATA "/names-to-escape.applescript"));
}

TEST(ElementKind, isDecidedByWordsInTheWholePath)
{
    EXPECT_EQ(kindOf("/Lightroom Tessellane/a"), ElementKind::lightroom);
    EXPECT_EQ(kindOf("/lightroom/a"), ElementKind::photo);
    EXPECT_EQ(kindOf("/tessellane/a"), ElementKind::photo);
    EXPECT_EQ(generationOf("/Velvetgrain 3/Lightroom").digit, "3");
    EXPECT_EQ(supersededSuffix("X 12.plugin"), "2");
}

} // namespace
} // namespace corvellane
