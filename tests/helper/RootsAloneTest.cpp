#include "helper/RootsAlone.h"
#include "tests/ScratchFolder.h"

#include <gmock/gmock.h>

#include <sys/xattr.h>
#include <unistd.h>

namespace corvellane::runner {
namespace {

using testing::Optional;
using testing::StartsWith;

constexpr auto nobody = std::nullopt;

TEST(RootsAlone, believesInNothingThatSomebodyElseCouldChange)
{
    EXPECT_EQ(whyChangeable("/bin/sh"), nobody);
    EXPECT_THAT(whyChangeable("/tmp"),
        Optional(std::string("“/tmp” can be changed by others than root: everybody can write it.")));
    EXPECT_THAT(whyChangeable("/gone"), Optional(std::string("“/gone” cannot be read: No such file or directory.")));
    const ScratchFolder scratch;
    if (geteuid() != 0) {
        EXPECT_NE(whyChangeable(scratch.path()), nobody);
        GTEST_SKIP() << "only root can make what is root's alone";
    }
    scratch.write("tree/in/file", "");
    struct Row {
        std::string command;
        std::string ofTree;
        std::string ofFile;
    };
    // The sticky bit will do for a folder above, as the scratch folder's has.
    const std::vector<Row> rows{{"chmod 755 tree tree/in", "", ""}, {"chmod 1777 tree/in", "/in” can be", ""},
        {"chmod 777 tree/in", "/in” can be", "/in” can be"}, {"chmod 775 tree/in", "", ""},
        {"chgrp 65534 tree/in", "/in” can be", "/in” can be"},
        {"chgrp 0 tree/in; chmod 755 tree/in; chmod 666 tree/in/file", "/in/file” can be", "/in/file” can be"},
        {"chmod 644 tree/in/file; chmod 777 tree", "” can be", "” can be"},
        {"chmod 755 tree; ln -s /tmp tree/link", "", ""}, {"chown -h 65534 tree/link", "/link” can be", ""},
        {"rm tree/link; mkfifo tree/pipe", "/pipe” is neither", ""},
        {"rm tree/pipe; chown 65534 tree", "” can be", "” can be"}};
    // The lists of access that POSIX 1003.1e drew up, as Linux stores them: of the owner, a user, the group, all,
    // others.
    using namespace std::string_literals;
    const std::string access = "\2\0\0\0"s
                               "\1\0\7\0\xFF\xFF\xFF\xFF"s
                               "\2\0\7\0\xFE\xFF\0\0"s
                               "\4\0\5\0\xFF\xFF\xFF\xFF"s
                               "\20\0\7\0\xFF\xFF\xFF\xFF"s
                               "\40\0\5\0\xFF\xFF\xFF\xFF"s;
    const std::string tree = scratch.path() + "/tree";
    const auto expect
        = [&](const std::optional<std::string>& reason, const std::string& words, const std::string& command) {
              EXPECT_EQ(reason.has_value(), !words.empty()) << command;
              EXPECT_THAT(reason.value_or(""), StartsWith(words.empty() ? "" : "“" + tree + words)) << command;
          };
    for (const auto& [command, ofTree, ofFile] : rows) {
        ASSERT_EQ(std::system(("cd " + scratch.path() + "; " + command).c_str()), 0) << command;
        expect(whyNotCopied(tree, Owner::rootAlone), ofTree, command);
        expect(whyChangeable(tree + "/in/file"), ofFile, command);
    }
    ASSERT_EQ(std::system(("chown 0 " + tree).c_str()), 0);
    ASSERT_EQ(setxattr((tree + "/in").c_str(), "system.posix_acl_access", access.data(), access.size(), 0), 0);
    expect(whyChangeable(tree + "/in/file"), "/in” can be", "an access list");
}

/// Every link on the way could be bent, not only the folder at its end.
TEST(RootsAlone, followsEachLinkOnTheWay)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make what is root's alone";
    }
    const ScratchFolder scratch;
    scratch.write("real/file", "");
    ASSERT_EQ(std::system(("cd " + scratch.path()
                  + "; mkdir open; chmod 777 open; ln -s ../real open/second; "
                    "ln -s open/second first; ln -s real good; ln -s loop loop")
                      .c_str()),
        0);
    EXPECT_EQ(whyChangeable(scratch.path() + "/good/file"), nobody);
    EXPECT_EQ(whyChangeable(scratch.path() + "/good/../real/file"), nobody);
    EXPECT_THAT(
        whyChangeable(scratch.path() + "/first/file"), Optional(StartsWith("“" + scratch.path() + "/open” can be")));
    EXPECT_NE(whyChangeable(scratch.path() + "/loop/file"), nobody);
}

} // namespace
} // namespace corvellane::runner
