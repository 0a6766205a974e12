#include "tools/PayloadReport.h"

#include "platform/posix/PosixFiles.h"
#include "tests/ScratchFolder.h"
#include "tools/PrintableText.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class PayloadReportTest : public testing::Test {
protected:
    PayloadReport report()
    {
        std::vector<std::string> products;
        for (const auto& entry : fs::directory_iterator(scratch.path())) {
            if (entry.is_directory()) {
                products.push_back(entry.path().native());
            }
        }
        return reportPayload(
            PosixFiles(), scratch.path(), ProductSelection(products), {"app/", "video/", "photo/", "lr/"});
    }

    /// "path: message" of each warning, the path from the scratch folder on.
    std::vector<std::string> warnings()
    {
        std::vector<std::string> lines;
        for (const PayloadWarning& warning : report().warnings) {
            const bool below = warning.path.starts_with(scratch.path() + "/");
            lines.push_back(
                (below ? warning.path.substr(scratch.path().size() + 1) : warning.path) + ": " + warning.message);
        }
        return lines;
    }

    ScratchFolder scratch;
};

TEST_F(PayloadReportTest, tellsWhatBecomesOfEachElement)
{
    for (const std::string inner : {"Corvellane Velvetgrain 4", "velvetgrain4.lrdevplugin", "Velvetgrain4.app"}) {
        fs::create_directories(scratch.path() + "/L/Lightroom/" + inner);
    }
    fs::create_directories(scratch.path() + "/V/Tessellane 2.plugin");
    EXPECT_THAT(report().lines,
        ElementsAre("L", "  Lightroom", "    kind: Lightroom", "    target folder: lr/", "    digit: 4",
            "    preset identifier: E70E900E-6A66-4882-B59A-2B05764B1430", "V", "  Tessellane 2.plugin",
            "    kind: video", "    target folder: video/",
            "    supersedes: Glintmotion2.plugin, Velvetgrain2.plugin"));
    EXPECT_THAT(warnings(), IsEmpty());
}

TEST_F(PayloadReportTest, warnsOfWhatWillNotGoAsItsMakerMeansIt)
{
    scratch.write("a/file.plugin", "");
    scratch.write("loose.txt", "");
    fs::create_directories(scratch.path() + "/b/Lightroom/velvetgrain4.lrdevplugin");
    fs::create_directories(scratch.path() + "/c Tessellane/X.plugin");
    fs::create_directories(scratch.path() + "/d/Tessellane 12.plugin");
    fs::create_directories(scratch.path() + "/e $/E.plugin/in");
    fs::create_symlink("../../../d", scratch.path() + "/e $/E.plugin/in/out");
    fs::create_symlink("/usr", scratch.path() + "/e $/E.plugin/in/root");
    fs::create_symlink("../gone", scratch.path() + "/e $/E.plugin/in/gone");
    fs::create_symlink("..", scratch.path() + "/e $/E.plugin/in/up");
    scratch.write("e $/E.plugin/mine", "");
    fs::permissions(scratch.path() + "/e $/E.plugin/mine", fs::perms::owner_read | fs::perms::set_uid);
    fs::permissions(scratch.path() + "/e $/E.plugin/in", fs::perms::owner_all | fs::perms::others_read);
    ASSERT_EQ(mkfifo((scratch.path() + "/e $/E.plugin/pipe").c_str(), 0600), 0);
    const std::vector<std::string> expected{"loose.txt: is no folder and will be ignored",
        "a/file.plugin: is no folder and will be ignored", "a: holds no folder and installs nothing",
        "b/Lightroom: lacks the folder “Corvellane Velvetgrain 4”, which the script needs",
        "b/Lightroom: lacks the folder “Velvetgrain4.app”, which the script needs",
        "c Tessellane/X.plugin: is a video element only by the name of a folder above it",
        "d/Tessellane 12.plugin: supersedes the bundles of generation 2, because of the “2” inside its name",
        "e $: has a name with characters that the script has to escape",
        "e $/E.plugin/in/gone: is a link to nothing: “../gone”",
        "e $/E.plugin/in/out: is a link that leaves its element: “../../../d”",
        "e $/E.plugin/in/root: is a link that leaves its element: “/usr”",
        "e $/E.plugin/in: cannot be read by everybody", "e $/E.plugin/mine: cannot be read by everybody",
        "e $/E.plugin/mine: has a set-user-ID or set-group-ID bit, which is lost when it is installed",
        "e $/E.plugin/pipe: is neither a file nor a folder nor a link, and keeps its element from being installed",
        "photo/: is not created by the script when these products are installed together; it must be there already"};
    EXPECT_THAT(warnings(), testing::UnorderedElementsAreArray(expected));
}

TEST(PrintableText, isOneLineOfUtf8)
{
    EXPECT_EQ(printable("é a\nb\\\x01\xFF\xC3"), "é a\\nb\\\\\\x01\\xFF\\xC3");
    EXPECT_EQ(printable("\xC2\x85 \xE2\x80\xA8"), "\\xC2\\x85 \xE2\x80\xA8");
}

} // namespace
} // namespace corvellane
