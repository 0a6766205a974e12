#pragma once

#include "app/System.h"
#include "cli/Comparison.h"
#include "cli/Removal.h"
#include "install/InstallScript.h"
#include "install/ScriptOutcome.h"
#include "platform/ScriptService.h"
#include "platform/linux/RehearsalPrompt.h"
#include "tests/ScratchFolder.h"
#include "tools/FolderTree.h"
#include "tools/PrintableText.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

namespace corvellane {

/// An order for two persons, whose host folders lie in a scratch folder; it is carried out as the program does it, but
/// with the rights of this process.
class OrderTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (geteuid() != 0) {
            GTEST_SKIP() << "only root can make what is root's";
        }
        // As the command runner does.
        umask(022);
        std::filesystem::create_directories(base);
        order.productsFolder = scratch.path() + "/Products";
        for (const std::string name : {"anna", "bert"}) {
            order.persons.push_back({{name, base + "/" + name, geteuid()},
                {base + "/app/", base + "/video/", base + "/photo/", base + "/" + name + "/lr/"}});
        }
    }

    /// Adds an element to the order, with files that hold their names.
    void add(const std::string& path, const std::vector<std::string>& files)
    {
        for (const std::string& file : files) {
            scratch.write("Products/" + path + "/" + file, file);
        }
        order.elements.push_back(order.productsFolder + "/" + path);
    }

    void addOneOfEachKind()
    {
        add("For Lightroom/Velvetgrain 3 Lightroom",
            {"Corvellane Velvetgrain 3/preset", "velvetgrain3.lrdevplugin/Info.lua", "Velvetgrain3.app/code"});
        add("Photo/Grain.plugin", {"code", "sub/more"});
        add("Tessellane/Cut.plugin", {"code"});
    }

    /// What the script gives, run for the person at `index`.
    std::string run(std::size_t index, const std::string& script) const
    {
        const HostPaths& hosts = order.persons[index].hosts;
        System system;
        system.prompt = std::make_shared<RehearsalPrompt>(runner::InstallFolders{
            order.productsFolder + "/", hosts.application, hosts.video, hosts.photo, hosts.lightroom});
        return resultText(system.platform().scripts.create(script)->execute()).value_or("");
    }

    void install(const Removal& clearance = {}) const
    {
        for (std::size_t index = 0; index < order.persons.size(); ++index) {
            ScriptText script;
            appendRemoval(script, partFor(clearance, order.persons, index));
            appendInstallation(script, order.persons[index].hosts, elementsFor(order, index), LinkFolders::ofEachKind);
            EXPECT_EQ(run(index, std::move(script).finish()), "Ok");
        }
    }

    std::vector<Difference> remove() const
    {
        const Removal removal = removalOf(made());
        for (std::size_t index = 0; index < order.persons.size(); ++index) {
            ScriptText script;
            appendRemoval(script, partFor(removal, order.persons, index));
            EXPECT_EQ(run(index, std::move(script).finish()), "Ok");
        }
        return removal.kept;
    }

    Installation made() const { return whatIsMade(order).value(); }

    /// What is said of each element: its state and, "$" for the folder of all, its differences.
    std::vector<std::string> said() const
    {
        std::vector<std::string> lines;
        for (const MadeElement& element : made().elements) {
            const ElementComparison comparison = compare(element);
            std::string line(nameOf(comparison.state));
            for (const Difference& difference : comparison.differences) {
                line += lineOf(difference);
            }
            lines.push_back(line);
        }
        return lines;
    }

    std::string lineOf(const Difference& difference) const
    {
        EXPECT_TRUE(difference.path.starts_with(base)) << difference.path;
        return "; $" + printable(difference.path.substr(base.size())) + " " + difference.text;
    }

    std::vector<std::string> tree() const { return describeTree(base, base); }

    void shell(const std::string& commands) const
    {
        ASSERT_EQ(std::system(("cd " + base + "; umask 022; " + commands).c_str()), 0) << commands;
    }

    const ScratchFolder scratch;
    const std::string base = scratch.path() + "/machine";
    Order order;
};

} // namespace corvellane
