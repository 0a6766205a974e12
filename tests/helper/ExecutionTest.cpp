#include "helper/Execution.h"
#include "tests/ScratchFolder.h"
#include "tools/FolderTree.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvellane::runner {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

/// An installation's folders in a scratch folder: P, A, V and H, and L in a home that belongs to nobody.
class ExecutionTest : public testing::Test {
protected:
    ExecutionTest()
    {
        shell("umask 022; mkdir P A V H home home/L; [ $(id -u) != 0 ] || chown -R 65534:65534 home");
        chmod(scratch.path().c_str(), 0755);
    }

    void shell(const std::string& command) const
    {
        ASSERT_EQ(std::system(("cd " + scratch.path() + "; " + command).c_str()), 0) << command;
    }

    /// Each "@" in the command stands for the scratch folder and "/".
    Reply run(std::string command) const
    {
        for (auto at = command.find('@'); at != std::string::npos; at = command.find('@')) {
            command.replace(at, 1, base);
        }
        return carryOut(command, site);
    }

    /// What stands in V, "@" for the scratch folder.
    std::vector<std::string> tree() const
    {
        auto lines = describeTree(base + "V", base);
        for (std::string& line : lines) {
            if (const auto at = line.find(base); at != std::string::npos) {
                line.replace(at, base.size(), "@");
            }
        }
        return lines;
    }

    const ScratchFolder scratch;
    const std::string base = scratch.path() + "/";
    Site site{{base + "P/", base + "A/", base + "V/", base + "H/", base + "home/L/"},
        {65534, 65534, {65534}, base + "home"}, Owner::anybody};
};

TEST_F(ExecutionTest, copiesAndLinksAsTheScriptsMeanItAlsoTheSecondTime)
{
    struct Row {
        std::string before;
        std::vector<std::string> commands;
        std::vector<std::string> tree;
    };
    const std::vector<Row> rows{
        {"mkdir -p A/x/sub; echo x > A/x/file; ln -s file A/x/link; ln -s gone A/x/é",
            {R"(mkdir -p "@V/new")", R"(cp -R -f "@A/x/" "@V/new/")"},
            {"folder  V/new", "file    V/new/file (2 bytes)", "link    V/new/link -> file", "folder  V/new/sub",
                "link    V/new/é -> gone"}},
        {"mkdir P/x", {R"(cp -R -f "@P/x" "@V/")"}, {"folder  V/x"}},
        {"mkdir V/real V/old; ln -s old V/link; ln -s gone V/dangling",
            {R"(ln -f -h -s "@A/n" "@V/link")", R"(ln -f -h -s "@A/n" "@V/dangling")",
                R"(ln -f -h -s "@A/n" "@V/real")"},
            {"link    V/dangling -> @A/n", "link    V/link -> @A/n", "folder  V/old", "folder  V/real",
                "link    V/real/n -> @A/n"}},
        {"mkdir V/else; ln -s else V/Modules", {R"(ln -f -h -s "@A/n" "@V/Modules/")"},
            {"link    V/Modules -> else", "folder  V/else", "link    V/else/n -> @A/n"}},
        {"mkdir -p V/x/y", {R"(rm -R -f "@V/x")", R"(rm -R -f "@V/gone")"}, {}},
        {"true", {R"(echo "a\\tb" > "@V/text")"}, {"file    V/text (4 bytes)"}},
    };
    for (const Row& row : rows) {
        shell("rm -rf V; mkdir V; " + row.before);
        for (int time = 0; time < 2; ++time) {
            for (const std::string& command : row.commands) {
                EXPECT_EQ(run(command).errors, "");
            }
            EXPECT_EQ(tree(), row.tree);
        }
    }
}

/// Those that were there before, however empty, stay.
TEST_F(ExecutionTest, removesFoldersThatItHasMadeWhenTheyAreEmpty)
{
    shell("mkdir V/before");
    EXPECT_EQ(run(R"(mkdir -p "@V/before/a/b/")").errors, "");
    EXPECT_EQ(run(R"(mkdir -p "@V/a/b/c/")").errors, "");
    shell("mkdir V/before/a/theirs V/a/b/c/theirs");
    EXPECT_EQ(run(R"(rmdir -p "@V/a/b/c/")").errors, "");
    EXPECT_EQ(run(R"(rmdir -p "@V/before/a/b/")").errors, "");
    EXPECT_EQ(tree(),
        (std::vector<std::string>{"folder  V/a", "folder  V/a/b", "folder  V/a/b/c", "folder  V/a/b/c/theirs",
            "folder  V/before", "folder  V/before/a", "folder  V/before/a/theirs"}));
    shell("rmdir V/before/a/theirs V/a/b/c/theirs V/a/b/c");
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(run(R"(rmdir -p "@V/a/b/c/")").errors, "") << "what is gone is passed over";
        EXPECT_EQ(run(R"(rmdir -p "@V/before/a/b/")").errors, "");
        EXPECT_EQ(tree(), std::vector<std::string>{"folder  V/before"});
    }
    shell("ln -s before V/link");
    EXPECT_EQ(run(R"(rmdir -p "@V/link/")").errors, "");
    EXPECT_EQ(tree().size(), 2);
}

TEST_F(ExecutionTest, removesALinkOnlyWhileItPointsThere)
{
    shell("ln -s $PWD/A/x V/ours; ln -s $PWD/A/xy V/longer; ln -s $PWD/A V/shorter; echo x > V/file; mkdir V/folder");
    for (const std::string name : {"ours", "longer", "shorter", "file", "folder", "gone"}) {
        EXPECT_EQ(
            run("[ \"$(readlink -n \"@V/" + name + "\")\" != \"@A/x\" ] || rm -f \"@V/" + name + "\"").errors, "");
    }
    EXPECT_EQ(tree(),
        (std::vector<std::string>{
            "file    V/file (2 bytes)", "folder  V/folder", "link    V/longer -> @A/xy", "link    V/shorter -> @A"}));
}

TEST_F(ExecutionTest, saysWhatTheToolsSay)
{
    const auto expect = [this](const std::string& command, int status, const std::string& words) {
        const Reply reply = run(command);
        EXPECT_EQ(reply.status, status) << command;
        EXPECT_THAT(reply.errors, EndsWith(words + "\n")) << command;
    };
    expect(R"(cp -R -f "@A/gone" "@V/")", 1, "cp: cannot stat '" + base + "A/gone': No such file or directory");
    expect(R"(ln -f -h -s "@A/a" "@V/gone/a")", 1, "V/gone/a': No such file or directory");
    expect(R"(echo "a" > "@V/gone/a")", 2, "cannot create " + base + "V/gone/a: Directory nonexistent");
    expect(R"(cp -R -f "@P/gone" "@V/")", 126, "“" + base + "P/gone” cannot be read: No such file or directory.");
    shell("mkfifo P/pipe; mkdir P/x; mkfifo P/x/pipe");
    expect(R"(cp -R -f "@P/x" "@V/")", 126, "“" + base + "P/x/pipe” is neither a file nor a folder nor a link.");
    site.user.home = base + "gone";
    expect(R"(mkdir -p "@home/L/a")", 126, "There is no home folder “" + base + "gone” to install into.");
    expect("id", 126, "“id” is not a command of an installation.");
}

/// What a person has put into the place of a file holds up nobody; links to files are followed, as a shell follows
/// them.
TEST_F(ExecutionTest, waitsForNothingThatStandsInAFilesPlace)
{
    shell("mkdir -p A/x/sub; echo x > A/x/sub/preset; cd home/L; mkdir -p f/sub p/sub l/sub; mkfifo f/sub/preset pipe; "
          "ln -s ../../pipe p/sub/preset; ln -s pipe linked; ln -s /dev/null device; echo old > l/file; "
          "ln -s ../file l/sub/preset; [ $(id -u) != 0 ] || chown -h -R 65534:65534 .");
    const std::vector<std::pair<std::string, std::string>> rows{
        {R"(echo "a" > "@home/L/pipe")", "pipe"},
        {R"(echo "a" > "@home/L/linked")", "linked"},
        {R"(echo "a" > "@home/L/device")", "device"},
        {R"(cp -R -f "@A/x/" "@home/L/f/")", "f/sub/preset"},
        {R"(cp -R -f "@A/x/" "@home/L/p/")", "p/sub/preset"},
        {R"(cp -R -f "@A/x/sub" "@home/L/f/")", "f/sub/preset"},
    };
    const auto expectRefusals = [&] {
        for (const auto& [command, path] : rows) {
            EXPECT_THAT(run(command).errors, HasSubstr("home/L/" + path + "” is a pipe, a device or a socket"));
        }
    };
    expectRefusals();
    const int reader = open((base + "home/L/pipe").c_str(), O_RDONLY | O_NONBLOCK);
    expectRefusals();
    char nothing = 0;
    EXPECT_EQ(read(reader, &nothing, 1), 0) << "also while somebody reads";
    close(reader);
    EXPECT_EQ(run(R"(cp -R -f "@A/x/" "@home/L/l/")").errors, "");
    EXPECT_EQ(run(R"(echo "longer" > "@home/L/l/sub/preset")").errors, "");
    EXPECT_EQ(run(R"(echo "new" > "@home/L/l/sub/preset")").errors, "");
    shell("test \"$(cat home/L/l/file)\" = new && test -L home/L/l/sub/preset");
}

TEST_F(ExecutionTest, doesAsTheUserWhatLiesInTheHome)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can become somebody else";
    }
    shell("mkdir -p A/x; echo x > A/x/file; echo secret > P/secret; chmod 600 P/secret; mkdir P/roots");
    const std::vector<std::string> commands{R"(mkdir -p "@home/L/a/b")", R"(cp -R -f "@A/x/" "@home/L/a/b/")",
        R"(ln -f -h -s "@A/x" "@home/L/a/")", R"(echo "text" > "@home/L/a/text")", R"(chown -R $USER "@home/L/a")"};
    for (const std::string& command : commands) {
        EXPECT_EQ(run(command).errors, "");
    }
    shell("test $(find home ! -user 65534 -o ! -group 65534 | wc -l) = 0 && test $(find home | wc -l) = 7");
    shell("ln -s ../../P/secret home/L/preset; ln -s ../../P/roots home/L/Modules; ln P/secret home/L/a/hard");
    EXPECT_THAT(run(R"(echo "text" > "@home/L/preset")").errors, HasSubstr("Permission denied"));
    EXPECT_THAT(run(R"(ln -f -h -s "@A/x" "@home/L/Modules/")").errors, HasSubstr("Permission denied"));
    EXPECT_THAT(run(R"(cp -R -f "@A/x/" "@home/L/Modules/")").errors, HasSubstr("Permission denied"));
    EXPECT_THAT(run(R"(chown -R $USER "@home/L/a")").errors, HasSubstr("Operation not permitted"));
    shell("test \"$(cat P/secret; stat -c %u P/secret; ls P/roots)\" = 'secret\n0'");
    EXPECT_EQ(run(R"(mkdir -p "@V/a")").errors, "") << "root again";
    shell("test $(stat -c %u V/a) = 0");
}

TEST_F(ExecutionTest, asRootReadsAndWritesWhereNobodyElseCouldLeadIt)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make what is root's alone";
    }
    site.owner = Owner::rootAlone;
    shell("mkdir P/x; echo x > P/x/file");
    EXPECT_EQ(run(R"(cp -R -f "@P/x" "@V/")").errors, "");
    shell("chown 65534 P/x/file");
    EXPECT_THAT(run(R"(cp -R -f "@P/x" "@V/")").errors, HasSubstr("P/x/file” can be changed by others than root"));
    shell("chown 0 P/x/file; chmod 777 V");
    for (const std::string command : {R"(cp -R -f "@P/x" "@V/")", R"(rm -R -f "@V/x")", R"(mkdir -p "@V/a/b/")"}) {
        EXPECT_THAT(run(command).errors, HasSubstr("V” can be changed by others than root: everybody can write it"));
    }
}

} // namespace
} // namespace corvellane::runner
