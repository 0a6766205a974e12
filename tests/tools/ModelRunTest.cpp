#include "tools/ModelRun.h"

#include "app/System.h"
#include "install/InstallScript.h"
#include "platform/ScriptService.h"
#include "platform/linux/RehearsalPrompt.h"
#include "tests/ScratchFolder.h"
#include "tools/FolderTree.h"
#include "tools/PrintableText.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::HasSubstr;
using testing::StartsWith;

/// Installs elements really and on a model.
class ModelRunTest : public testing::Test {
protected:
    ModelRunTest()
    {
        fs::create_directories(hosts.video);
        fs::create_directories(hosts.photo);
    }

    std::string element(const std::string& path, const std::vector<std::string>& files)
    {
        for (const std::string& file : files) {
            scratch.write("from/" + path + "/" + file, path + file);
        }
        return from + "/" + path;
    }

    std::string lightroom(const std::string& path, const std::string& preset)
    {
        return element(path,
            {"Corvellane Velvetgrain 4/" + preset, "Corvellane Velvetgrain 4/in/x", "velvetgrain4.lrdevplugin/Info.lua",
                "Velvetgrain4.app/Contents/x"});
    }

    std::string installReally(const std::vector<std::string>& elements)
    {
        System system;
        system.prompt = std::make_shared<RehearsalPrompt>(
            runner::InstallFolders{from + "/", hosts.application, hosts.video, hosts.photo, hosts.lightroom});
        const auto script = system.platform().scripts.create(composeInstallScript(hosts, elements));
        return script->execute().result.value().text.value();
    }

    void installOnModel(const std::vector<std::string>& elements)
    {
        readIntoModel(tree, from);
        addHostFolders(tree, hosts);
        findings = runOnModel(tree, composeInstallScript(hosts, elements), from, hosts);
    }

    /// As describeTree() has it.
    static std::string describe(const std::string& name, const ModelEntry& entry)
    {
        switch (entry.kind) {
        case ModelEntry::Kind::folder:
            return "folder  " + name;
        case ModelEntry::Kind::link:
            return "link    " + name + " -> " + printable(entry.target);
        case ModelEntry::Kind::file:
            return "file    " + name + " (" + std::to_string(entry.size) + " bytes)";
        case ModelEntry::Kind::special:
            return "other   " + name;
        }
        return {};
    }

    /// What the model has and the disk does not, and the other way round.
    std::vector<std::string> difference()
    {
        std::vector<std::string> modelled;
        for (const auto& [path, entry] : tree.below(base)) {
            modelled.push_back(describe(printable(path.substr(base.size() + 1)), entry));
        }
        auto real = describeTree(base, base);
        std::ranges::sort(real);
        std::ranges::sort(modelled);
        std::vector<std::string> lines;
        std::ranges::set_symmetric_difference(real, modelled, std::back_inserter(lines));
        return lines;
    }

    ScratchFolder scratch;
    const std::string base = scratch.path() + "/into";
    const std::string from = scratch.path() + "/from";
    const HostPaths hosts{base + "/app/", base + "/video/", base + "/photo/", base + "/lr/"};
    ModelTree tree;
    Findings findings;
};

TEST_F(ModelRunTest, endsAsARealInstallationDoes)
{
    const std::vector<std::string> elements{element("A Tessellane/Velvetgrain.plugin", {"a", "in/a"}),
        element("B/Velvetgrain Tessellane.plugin", {"b"}), element("C/X.plugin", {"c", "in/c", "same"}),
        element("D/X.plugin", {"d", "in/d", "same"}), element("E/$ \"`\\\n.plugin", {"e"}),
        lightroom("F/Lightroom one", "Soft"), lightroom("G/Lightroom two", "Hard")};
    fs::create_symlink("a", elements[0] + "/link");
    fs::create_directories(elements[2] + "/empty");
    installOnModel(elements);
    EXPECT_EQ(installReally(elements), "Ok");
    EXPECT_THAT(difference(), testing::IsEmpty());
    std::vector<std::string_view> codes;
    std::ranges::transform(
        findings, std::back_inserter(codes), [](const auto& finding) { return finding.code.name(); });
    EXPECT_THAT(codes, testing::UnorderedElementsAre("assumed", "overwritten", "overwritten", "removed"));
    EXPECT_EQ(tree.find(base + "/lr/Export Presets/Corvellane Velvetgrain 4/Soft")->owner, ModelEntry::Owner::person);
    EXPECT_EQ(tree.find(hosts.application + "X.plugin/c")->owner, ModelEntry::Owner::administrator);
}

TEST_F(ModelRunTest, findsWhatARealInstallationFailsOf)
{
    const std::vector<std::string> elements{element("A/Lightroom", {"velvetgrain4.lrdevplugin/Path.txt/x"})};
    installOnModel(elements);
    EXPECT_THAT(installReally(elements), HasSubstr("Corvellane Velvetgrain 4/.': No such file"));
    fs::create_directories(elements[0] + "/Corvellane Velvetgrain 4");
    EXPECT_THAT(installReally(elements), HasSubstr("Path.txt: Is a directory"));
    EXPECT_THAT(findings, Contains(testing::Field(&Finding::text, StartsWith("lacks the folder “Corvellane"))));
    EXPECT_THAT(findings, Contains(testing::Field(&Finding::text, StartsWith("has something else at “velvet"))));
    EXPECT_THAT(runOnModel(tree, "do shell script \"rm /\" with administrator privileges", from, hosts),
        Contains(testing::Field(&Finding::text, HasSubstr("“rm /” is not a command of an installation"))));
}

} // namespace
} // namespace corvellane
