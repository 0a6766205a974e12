#include "pack/Installer.h"
#include "pack/Templates.h"
#include "tests/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace corvellane::pack {
namespace {

const Description example{"It's <Grain>", "com.example.Grain", "1.2", "Example & Co", "Example <a@b.example>",
    "https://grain.example/", "Faster.\nSmaller."};

TEST(Templates, tellOfTheMakerWhatTheSampleTellsOfItself)
{
    EXPECT_EQ(retold("Name=Corvellane Plugin Installer\nExec=corvellane-installer\nComment=Install Corvellane", example,
                  0, Quoting::desktop),
        "Name=It's <Grain>\nExec=/usr/lib/com.example.grain/bin/corvellane-installer\nComment=Install Example & Co");
    EXPECT_EQ(retold("<a id=\"com.corvellane\">com.corvellane.PluginInstaller.install Corvellane Plugin Installer"
                     "<release version=\"@PROJECT_VERSION@\" date=\"@DATE@\" />",
                  example, 86400, Quoting::xml),
        "<a id=\"com.example\">com.example.Grain.install It's &lt;Grain&gt;"
        "<release version=\"1.2\" date=\"1970-01-02\" />");
    EXPECT_EQ(quoted("It's", Quoting::shell), R"('It'\''s')");
    EXPECT_EQ(quoted(R"(Grain\new)", Quoting::desktop), R"(Grain\\new)");
}

TEST(Contents, takesTheModesThatEverybodyNeeds)
{
    namespace fs = std::filesystem;
    const ScratchFolder scratch;
    scratch.write("tree/a/program", "x");
    scratch.write("tree/a/secret", "y");
    fs::permissions(scratch.path() + "/tree/a/program", fs::perms{0700});
    fs::permissions(scratch.path() + "/tree/a/secret", fs::perms{0600});
    fs::create_symlink("../outside", scratch.path() + "/tree/link");
    Contents contents;
    contents.addTree("opt/it", scratch.path() + "/tree");
    EXPECT_TRUE(contents.items().at("opt/it/a/program").executable);
    EXPECT_FALSE(contents.items().at("opt/it/a/secret").executable);
    EXPECT_EQ(contents.items().at("opt/it/link").from, "../outside");
    EXPECT_EQ(contents.items().at("opt").kind, Item::Kind::folder);
    EXPECT_EQ(contents.size(), 2);
}

TEST(Installer, takesTheFilesThemselvesWhereTheyAreLinked)
{
    const ScratchFolder scratch;
    const std::string maker = scratch.path() + "/maker";
    EXPECT_EQ(whatIsMissing(maker).size(), 3);
    scratch.write("elsewhere/One/One.plugin/it", "");
    scratch.write("agreement", "{\\rtf1}");
    scratch.write("maker/Logo.png", "pixels");
    scratch.write("kit/bundle/bin/it", "");
    std::filesystem::create_symlink("../elsewhere", maker + "/Products");
    std::filesystem::create_symlink("../agreement", maker + "/CorvellaneEULA.rtf");
    EXPECT_EQ(whatIsMissing(maker), std::vector<std::string>());
    const Contents bundle = bundleOf({scratch.path() + "/kit", maker, example, 0});
    EXPECT_EQ(bundle.items().at("Resources/CorvellaneEULA.rtf").from, scratch.path() + "/agreement");
    EXPECT_EQ(bundle.items().at("Resources/Logo.png").from, maker + "/Logo.png");
    EXPECT_EQ(bundle.items().count("Resources/Products/One/One.plugin/it"), 1);
}

TEST(Installer, hasTheMakersIconWhereThereIsOne)
{
    const ScratchFolder scratch;
    for (const char* const file :
        {"maker/Products/One/One.plugin/it", "maker/CorvellaneEULA.rtf", "maker/Logo.svg", "kit/system/bin/it"}) {
        scratch.write(file, "");
    }
    for (const char* const ending : {".desktop", ".metainfo.xml", ".policy", ".svg"}) {
        scratch.write("kit/desktop/com.corvellane.PluginInstaller" + std::string(ending), "");
    }
    scratch.write("kit/desktop/corvellane-cli.1", "");
    const Ingredients ingredients{scratch.path() + "/kit", scratch.path() + "/maker", example, 0};
    const std::string shown = "usr/share/icons/hicolor/scalable/apps/" + example.identifier + ".svg";
    EXPECT_TRUE(systemFilesOf(ingredients).items().at(shown).from.starts_with(ingredients.kit));
    scratch.write("maker/Icon.svg", "");
    const Contents contents = systemFilesOf(ingredients);
    EXPECT_EQ(contents.items().at(shown).from, ingredients.maker + "/Icon.svg");
    const std::string asked = "usr/lib/" + example.packageName() + "/Resources/Icon.svg";
    EXPECT_EQ(contents.items().at(asked).from, ingredients.maker + "/Icon.svg");
}

} // namespace
} // namespace corvellane::pack
