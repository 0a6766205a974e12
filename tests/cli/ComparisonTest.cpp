#include "tests/cli/OrderTest.h"

#include <sys/stat.h>

namespace corvellane {
namespace {

using ComparisonTest = OrderTest;

const std::string preset = "/lr/Export Presets/Corvellane Velvetgrain 3/preset";
const std::string editor = "/lr/External Editor Presets/Corvellane/Corvellane Velvetgrain 3.lrtemplate";

TEST_F(ComparisonTest, tellsEachWayToDifferAndMendsIt)
{
    addOneOfEachKind();
    EXPECT_EQ(said(), std::vector<std::string>(3, "missing"));
    install();
    const std::vector<std::string> shipped(3, "as shipped");
    ASSERT_EQ(said(), shipped);
    const auto before = tree();
    struct Row {
        std::size_t element;
        std::string change;
        std::string text;
    };
    const std::string grain = "; $/app/Grain.plugin";
    const std::vector<Row> rows{
        {1, "printf CODE >app/Grain.plugin/code", grain + "/code has other contents"},
        {1, "printf more >>app/Grain.plugin/code", grain + "/code has other contents"},
        {1, "rm app/Grain.plugin/code; mkfifo app/Grain.plugin/code", grain + "/code is a special file, not a file"},
        {1, "rm -r app/Grain.plugin/sub; ln -s /tmp app/Grain.plugin/sub",
            grain + "/sub is a link, not a folder" + grain + "/sub/more is missing"},
        {1, "chmod 700 app/Grain.plugin/sub; chmod 4755 app/Grain.plugin/code",
            grain + "/code has the mode 4755, not 644" + grain + "/sub has the mode 700, not 755"},
        {1, "chown 7 app/Grain.plugin/code", grain + "/code belongs to the user 7, not 0"},
        {1, "mkdir -p app/Grain.plugin/sub/old/older", grain + "/sub/old is not in what is shipped"},
        {1, "rm photo/Grain.plugin", "; $/photo/Grain.plugin is missing"},
        {2, "ln -sfn /else video/Cut.plugin",
            "; $/video/Cut.plugin leads to “/else”, not to “" + base + "/app/Cut.plugin”"},
        {2, "ln -sfn $PWD/app/Cut.plugiN video/Cut.plugin",
            "; $/video/Cut.plugin leads to “" + base + "/app/Cut.plugiN”, not to “" + base + "/app/Cut.plugin”"},
        {0, "echo x >'bert" + preset + "'", "; $/bert" + preset + " has other contents"},
        {0, "rm 'anna" + preset + "'; mkfifo 'anna" + preset + "'",
            "; $/anna" + preset + " is a special file, not a file"},
        {0, "ln -sf /dev/zero 'anna" + editor + "'", "; $/anna" + editor + " is a link, not a file"},
        {0, "chown 7 'bert" + editor + "'", "; $/bert" + editor + " belongs to the user 7, not 0"},
    };
    for (const Row& row : rows) {
        shell(row.change);
        auto expected = shipped;
        expected[row.element] = "differs" + row.text;
        EXPECT_EQ(said(), expected) << row.change;
        const MadeElement element = made().elements[row.element];
        install(clearanceFor(element, compare(element)));
        EXPECT_EQ(said(), shipped) << row.change;
        EXPECT_EQ(tree(), before) << row.change;
    }
}

/// Shared folders are others' as well: that they are there, and closed or opened further, says nothing of an element.
TEST_F(ComparisonTest, countsNothingThatElementsShare)
{
    addOneOfEachKind();
    shell("mkdir -p app photo 'anna/lr/Export Presets/mine'; touch app/Another.plugin 'anna/lr/Export Presets/mine/x'");
    EXPECT_EQ(said(), std::vector<std::string>(3, "missing"));
    install();
    shell("chmod 700 app photo anna/lr 'anna/lr/Export Presets' bert/lr/Modules; chown 7 photo");
    EXPECT_EQ(said(), std::vector<std::string>(3, "as shipped"));
    EXPECT_TRUE(isAnyThere(made().elements[1]));
    shell("rm -r app/Grain.plugin");
    EXPECT_TRUE(isAnyThere(made().elements[1])) << "the link is left";
    shell("rm photo/Grain.plugin");
    EXPECT_FALSE(isAnyThere(made().elements[1]));
}

/// Of files that cannot be read nothing is said, rather than that the installed ones are not shipped.
TEST_F(ComparisonTest, needsAllThatIsShipped)
{
    addOneOfEachKind();
    shell("chmod -R go=rX ..");
    ASSERT_EQ(setegid(7) + seteuid(7), 0);
    const auto named = [&](const std::string& path) {
        const std::string whole = order.elements[1] + path;
        seteuid(0);
        chmod(whole.c_str(), 0700);
        seteuid(7);
        EXPECT_EQ(whatIsMade(order).error().message, "“" + whole + "” cannot be read: Permission denied");
        seteuid(0);
        chmod(whole.c_str(), 0755);
    };
    named("/code");
    named("/sub");
    named("");
    setegid(0);
    EXPECT_EQ(said().size(), 3);
}

} // namespace
} // namespace corvellane
