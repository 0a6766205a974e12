#include "platform/linux/Preflight.h"
#include "tests/ScratchFolder.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <ctime>

namespace corvellane {
namespace {

using testing::HasSubstr;

class PreflightTest : public testing::Test {
protected:
    /// Why not; nothing when all is well. "@" stands for the scratch folder and "/".
    std::string whyNot(std::vector<std::string> commands) const
    {
        for (std::string& command : commands) {
            for (auto at = command.find('@'); at != std::string::npos; at = command.find('@')) {
                command.replace(at, 1, base);
            }
        }
        const auto failure = whyNotInstallable(commands, site);
        return failure ? failure->message : "";
    }

    const ScratchFolder scratch;
    const std::string base = scratch.path() + "/";
    runner::Site site{runner::installFolders(scratch.path(), "/home", base + "P"), {.home = scratch.path()}};
};

TEST_F(PreflightTest, saysBeforehandWhatCannotSucceed)
{
    scratch.write("P/x/file", "contents");
    const std::string copy = R"(cp -R -f "@P/x" "@Applications/Corvellane/")";
    EXPECT_EQ(whyNot({"", copy, R"(cp -R -f "@Applications/Corvellane/x/gone/" "@Applications/Corvellane/")"}), "");
    EXPECT_EQ(whyNot({copy, "id"}), "“id” is not a command of an installation.");
    EXPECT_EQ(whyNot({copy, R"(rm -R -f "@x")"}), "“" + base + "x” does not lie in a folder of an installation.");
    EXPECT_EQ(whyNot({R"(cp -R -f "@P/gone" "@Applications/Corvellane/")"}),
        "“" + base + "P/gone” cannot be read: No such file or directory.");
    site.owner = runner::Owner::rootAlone;
    std::filesystem::permissions(base + "P/x/file", std::filesystem::perms::all);
    EXPECT_THAT(whyNot({copy}), HasSubstr("” can be changed by others than root: "));
    site.user.home = "relative";
    EXPECT_EQ(whyNot({R"(mkdir -p "@home/Library/Application Support/Adobe/Lightroom/a")"}),
        "There is no home folder “relative” to install into.");
}

TEST_F(PreflightTest, takesTimeByTheCommandsAlone)
{
    scratch.write("P/x/file", "");
    std::vector<std::string> commands;
    commands.reserve(5000);
    for (int folder = 0; folder < 5000; ++folder) {
        commands.push_back(R"(cp -R -f "@P/x" "@Applications/Corvellane/)" + std::to_string(folder) + "/\"");
    }
    const std::clock_t begin = std::clock();
    EXPECT_EQ(whyNot(commands), "");
    EXPECT_LT(std::clock() - begin, 3 * CLOCKS_PER_SEC);
}

/// The file is a hole: it needs the room that it would take when it is copied whole.
TEST_F(PreflightTest, addsUpTheRoomThatCopiesNeedAndTakesOffWhatTheyReplace)
{
    scratch.write("P/x/file", "");
    scratch.write("P/x/presets/file", "");
    const auto free = std::filesystem::space(scratch.path()).free;
    const std::vector<std::string> copies{R"(cp -R -f "@P/x" "@Applications/Corvellane/")",
        R"(cp -R -f "@Applications/Corvellane/x/presets/" "@home/Library/Application Support/Adobe/Lightroom/b/")"};
    const auto size = free / 4 * 3;
    std::filesystem::resize_file(base + "P/x/file", size);
    EXPECT_EQ(whyNot(copies), "");
    std::filesystem::resize_file(base + "P/x/presets/file", free / 5);
    EXPECT_EQ(whyNot({copies[0]}), "");
    EXPECT_THAT(whyNot(copies),
        testing::MatchesRegex("There is not enough room for “.*”: [0-9]+[.][0-9] [MGT]B are "
                              "needed, and [0-9]+[.][0-9] [MGT]B are free[.]"));
    scratch.write("Applications/Corvellane/x/file", "");
    std::filesystem::resize_file(base + "Applications/Corvellane/x/file", size);
    EXPECT_EQ(whyNot(copies), "");
}

} // namespace
} // namespace corvellane
