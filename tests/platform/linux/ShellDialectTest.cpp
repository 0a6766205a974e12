#include "platform/linux/LinuxShell.h"
#include "tests/ScratchFolder.h"
#include "tools/FolderTree.h"

#include <sys/stat.h>

namespace corvellane {
namespace {

/// Commands in the BSD tools' manner, run in a scratch folder.
struct Place {
    script::CommandResult run(const std::string& command) const
    {
        return LinuxShell({"someone", "/"}).run("cd \"" + scratch.path() + "\"; " + command).value();
    }

    ScratchFolder scratch;
};

TEST(ShellDialect, copiesAndLinksAsTheScriptsMeanItAlsoTheSecondTime)
{
    struct Row {
        std::string before;
        std::string command;
        std::vector<std::string> tree;
    };
    const std::vector<Row> rows{
        {"mkdir -p 'from it/sub' to; echo x > 'from it/file'; ln -s file 'from it/link'; ln -s gone 'from it/é'",
            "cp -R -f \"from it/\" to/",
            {"folder  from it", "file    from it/file (2 bytes)", "link    from it/link -> file", "folder  from it/sub",
                "link    from it/é -> gone", "folder  to", "file    to/file (2 bytes)", "link    to/link -> file",
                "folder  to/sub", "link    to/é -> gone"}},
        {"mkdir -p from/sub to", "cp -R -f from to/; cp -R -f from/ new/",
            {"folder  from", "folder  from/sub", "folder  new", "folder  new/sub", "folder  to", "folder  to/from",
                "folder  to/from/sub"}},
        {"mkdir old new real; ln -s old link; ln -s gone dangling",
            "ln -f -h -s new link; ln -f -h -s new dangling; ln -f -h -s new real",
            {"link    dangling -> new", "link    link -> new", "folder  new", "folder  old", "folder  real",
                "link    real/new -> new"}},
        {"mkdir elsewhere; ln -s elsewhere Modules", "ln -f -h -s \"/to a/plugin\" \"Modules/\"",
            {"link    Modules -> elsewhere", "folder  elsewhere", "link    elsewhere/plugin -> /to a/plugin"}},
    };
    for (const Row& row : rows) {
        const Place place;
        place.run(row.before);
        for (int time = 0; time < 2; ++time) {
            EXPECT_EQ(place.run(row.command).errors, "");
            EXPECT_EQ(describeTree(place.scratch.path(), place.scratch.path()), row.tree);
        }
    }
}

TEST(ShellDialect, echoesLikeAnXsiShellAndCountsLinesFromOne)
{
    const Place place;
    EXPECT_EQ(place.run(R"(echo "a\\\\b\\tc"  'd\0101')").output, "a\\b\tc dA\n");
    EXPECT_EQ(place.run("echo -n").output, "-n\n");
    EXPECT_EQ(place.run("true\nno-such-command").errors, "/bin/sh: 2: no-such-command: not found\n");
    EXPECT_EQ(place.run("cp -R -f gone to/").errors, "cp: cannot stat 'gone': No such file or directory\n");
    const mode_t before = umask(0077);
    place.run("echo x > file; mkdir folder");
    umask(before);
    EXPECT_EQ(place.run("umask; stat -c %a file folder").output, "0022\n644\n755\n");
}

} // namespace
} // namespace corvellane
