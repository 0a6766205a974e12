#include "tests/cli/OrderTest.h"

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using RemovalTest = OrderTest;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

TEST_F(RemovalTest, leavesWhatWasThereBefore)
{
    addOneOfEachKind();
    for (const std::string there : {"true", "mkdir -p app photo anna/lr/Modules",
             "mkdir -p app/Another.plugin video 'bert/lr/Export Presets/Corvellane Velvetgrain 3'; ln -s /x "
             "video/Other"}) {
        shell("rm -rf *; " + there);
        const auto before = tree();
        EXPECT_TRUE(removalOf(made()).isEmpty());
        install();
        EXPECT_THAT(remove(), ElementsAre());
        EXPECT_EQ(tree(), before) << there;
    }
    // What the first installation made is still its own after a second one.
    shell("rm -rf *");
    install();
    install();
    EXPECT_THAT(remove(), ElementsAre());
    EXPECT_EQ(tree(), std::vector<std::string>());
}

TEST_F(RemovalTest, takesNamesForNothingElse)
{
    const std::string longest(255 - std::string(" Tessellane").size(), 'x');
    for (const std::string& name : {std::string("q\"uote' $(touch pwned) `touch pwned` $HOME"), std::string("tail\\"),
             std::string("line\nfeed\r\t"), std::string("-rf"), std::string("*?[a]"), std::string("bytes \xff\xfe"),
             std::string("] || rm -f x"), longest}) {
        order.elements.clear();
        add(name + "/" + name + " Tessellane", {name, "sub " + name.substr(0, 250) + "/" + name});
        add(name + " 2/" + name, {"corvellane", name});
        add(name + " Lightroom/Velvetgrain 3",
            {"Corvellane Velvetgrain 3/" + name, "velvetgrain3.lrdevplugin/" + name});
        install();
        EXPECT_EQ(said(), std::vector<std::string>(3, "as shipped")) << name;
        EXPECT_THAT(remove(), ElementsAre());
        EXPECT_EQ(tree(), std::vector<std::string>()) << name;
    }
    EXPECT_FALSE(fs::exists("pwned") || fs::exists("/pwned") || fs::exists(base + "/pwned"));
}

TEST_F(RemovalTest, keepsAndNamesWhatIsNotOurs)
{
    const std::string presets = "/lr/Export Presets/Corvellane Velvetgrain 3";
    addOneOfEachKind();
    shell("mkdir -p elsewhere/sub; touch elsewhere/sub/more");
    install();
    shell("echo mine >'anna" + presets + "/preset'; echo own >'anna" + presets
        + "/own'; ln -sfn /else video/Cut.plugin;"
          "echo x >app/Grain.plugin/code; touch app/Cut.plugin/theirs; rm -r bert/lr/Modules/*; mkdir bert/lr/Modules/"
          "velvetgrain3.lrdevplugin; rm -r app/Grain.plugin/sub; ln -s ../../elsewhere/sub app/Grain.plugin/sub");
    std::vector<std::string> kept;
    for (const Difference& each : remove()) {
        kept.push_back(lineOf(each));
    }
    EXPECT_THAT(kept,
        ElementsAre("; $/anna" + presets + "/preset has other contents",
            "; $/bert/lr/Modules/velvetgrain3.lrdevplugin is a folder, not a link",
            "; $/app/Grain.plugin/sub is a link, not a folder", "; $/app/Cut.plugin/theirs is not in what is shipped",
            "; $/video/Cut.plugin leads to “/else”, not to “" + base + "/app/Cut.plugin”"));
    EXPECT_THAT(tree(),
        ElementsAre("folder  anna", "folder  anna/lr", "folder  anna/lr/Export Presets", "folder  anna" + presets,
            "file    anna" + presets + "/own (4 bytes)", "file    anna" + presets + "/preset (5 bytes)", "folder  app",
            "folder  app/Cut.plugin", "file    app/Cut.plugin/theirs (0 bytes)", "folder  app/Grain.plugin",
            "link    app/Grain.plugin/sub -> ../../elsewhere/sub", "folder  bert", "folder  bert/lr",
            "folder  bert/lr/Modules", "folder  bert/lr/Modules/velvetgrain3.lrdevplugin", "folder  elsewhere",
            "folder  elsewhere/sub", "file    elsewhere/sub/more (0 bytes)", "folder  video",
            "link    video/Cut.plugin -> /else"));
}

/// Nobody's home is touched with another's rights.
TEST_F(RemovalTest, isDoneForEachPersonInTheOwnHome)
{
    addOneOfEachKind();
    install();
    const Removal whole = removalOf(made());
    for (const auto& [index, name, other] : {std::tuple(0U, "/anna/", "/bert/"), std::tuple(1U, "/bert/", "/anna/")}) {
        ScriptText text;
        appendRemoval(text, partFor(whole, order.persons, index));
        const std::string script = std::move(text).finish();
        EXPECT_THAT(script, HasSubstr(base + name + "lr/"));
        EXPECT_THAT(script, Not(HasSubstr(base + other + "lr/")));
        EXPECT_EQ(script.find(base + "/photo/") != std::string::npos, index == 0);
    }
}

} // namespace
} // namespace corvellane
