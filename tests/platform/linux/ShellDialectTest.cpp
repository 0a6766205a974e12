#include "platform/linux/LinuxShell.h"
#include "tests/ScratchFolder.h"
#include "tools/FolderTree.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace corvellane {
namespace {

using testing::ElementsAre;

/// Commands in the BSD tools' manner, run in a scratch folder.
class ShellDialectTest : public testing::Test {
protected:
    script::CommandResult run(const std::string& command)
    {
        return LinuxShell({"someone", "/"}).run("cd \"" + scratch.path() + "\"; " + command).value();
    }

    std::vector<std::string> tree() { return describeTree(scratch.path(), scratch.path()); }

    ScratchFolder scratch;
};

TEST_F(ShellDialectTest, copiesTheContentsOfAFolderWithATrailingSlash)
{
    run("mkdir -p \"from it/sub\" to; echo x > \"from it/file\"; ln -s file \"from it/link\"; ln -s gone \"from "
        "it/é\"");
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(run("cp -R -f \"from it/\" to/").errors, "");
        EXPECT_THAT(tree(),
            ElementsAre("folder  from it", "file    from it/file (2 bytes)", "link    from it/link -> file",
                "folder  from it/sub", "link    from it/é -> gone", "folder  to", "file    to/file (2 bytes)",
                "link    to/link -> file", "folder  to/sub", "link    to/é -> gone"));
    }
}

TEST_F(ShellDialectTest, copiesAFolderWithoutATrailingSlashAsAWhole)
{
    run("mkdir -p from/sub to");
    run("cp -R -f from to/; cp -R -f from to/");
    EXPECT_THAT(tree(),
        ElementsAre("folder  from", "folder  from/sub", "folder  to", "folder  to/from", "folder  to/from/sub"));
    EXPECT_EQ(run("cp -R -f from/ new/; ls -F new").output, "sub/\n");
    const script::CommandResult vanished = run("cp -R -f gone to/");
    EXPECT_EQ(vanished.status, 1);
    EXPECT_EQ(vanished.errors, "cp: cannot stat 'gone': No such file or directory\n");
}

TEST_F(ShellDialectTest, replacesALinkAtTheTargetInsteadOfFollowingIt)
{
    run("mkdir old new real; ln -s old link; ln -s gone dangling");
    EXPECT_EQ(run("ln -f -h -s new link; ln -f -h -s new dangling; ln -f -h -s new real").errors, "");
    EXPECT_EQ(run("ln -f -h -s new link").status, 0);
    EXPECT_THAT(tree(),
        ElementsAre("link    dangling -> new", "link    link -> new", "folder  new", "folder  old", "folder  real",
            "link    real/new -> new"));
}

TEST_F(ShellDialectTest, linksIntoAFolderThatIsItselfALink)
{
    run("mkdir elsewhere; ln -s elsewhere Modules");
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(run("ln -f -h -s \"/to a/plugin\" \"Modules/\"").errors, "");
        EXPECT_THAT(tree(),
            ElementsAre(
                "link    Modules -> elsewhere", "folder  elsewhere", "link    elsewhere/plugin -> /to a/plugin"));
    }
}

TEST_F(ShellDialectTest, echoesLikeAnXsiShellAndCountsLinesFromOne)
{
    EXPECT_EQ(run(R"(echo "a\\\\b\\tc"  'd\0101')").output, "a\\b\tc dA\n");
    EXPECT_EQ(run("echo -n").output, "-n\n");
    EXPECT_EQ(run("true\nno-such-command").errors, "/bin/sh: 2: no-such-command: not found\n");
    const mode_t before = umask(0077);
    run("echo x > file; mkdir folder");
    umask(before);
    EXPECT_EQ(run("umask; stat -c %a file folder").output, "0022\n644\n755\n");
}

} // namespace
} // namespace corvellane
