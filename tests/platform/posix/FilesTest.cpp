#include "platform/posix/PosixFiles.h"
#include "platform/posix/UserAccount.h"
#include "tests/ScratchFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace corvellane {
namespace {

/// A failure's message and number; nothing for a success.
using Told = std::pair<std::string, int>;

template <typename Value>
Told toldBy(const Expected<Value>& result)
{
    return result ? Told() : Told(result.error().message, result.error().number);
}

class FilesTest : public testing::Test {
protected:
    std::string path(const std::string& name) const { return scratch.path() + "/" + name; }
    Told reading(const std::string& name) const { return toldBy(PosixFiles().read(path(name), 5)); }
    Told listing(const std::string& name) const { return toldBy(PosixFiles().list(path(name))); }

    ScratchFolder scratch;
};

TEST_F(FilesTest, readsRegularFilesUpToTheLargestSize)
{
    for (const std::string& bytes : {std::string(), std::string("\xFF\0\r\n\x80", 5)}) {
        scratch.write("file", bytes);
        EXPECT_EQ(PosixFiles().read(path("file"), 5).value(), bytes);
    }
    scratch.write("large", "123456");
    EXPECT_EQ(reading("large"), Told("The file “large” couldn’t be opened.", EINVAL));
}

TEST_F(FilesTest, listsAFolderByTheBytesOfTheNames)
{
    scratch.write("folder/b", "");
    scratch.write("folder/a/x", "");
    std::filesystem::create_directory(path("folder/\xFF\n"));
    std::filesystem::create_symlink("a", path("folder/.link"));
    for (const std::string end : {"", "/"}) {
        std::vector<std::pair<std::string, bool>> found;
        const auto entries = PosixFiles().list(path("folder") + end);
        for (const FolderEntry& entry : *entries) {
            found.emplace_back(entry.path, entry.isFolder.value());
        }
        EXPECT_EQ(found,
            (decltype(found){{path("folder/.link"), false}, {path("folder/a"), true}, {path("folder/b"), false},
                {path("folder/\xFF\n"), true}}));
    }
}

TEST_F(FilesTest, saysWhatItCannotReadOrListAndWaitsForNothing)
{
    using std::filesystem::perms;
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0644), 0);
    scratch.write("secret", "a");
    scratch.write("locked/file", "");
    std::filesystem::permissions(path("secret"), perms::none);
    std::filesystem::permissions(path("locked"), perms::none);
    std::filesystem::permissions(scratch.path(), perms::all);
    // Root may read everything: for the moment of the test the process is somebody else.
    const bool isRoot = hasRootRights();
    ASSERT_TRUE(!isRoot || seteuid(65534) == 0);
    const std::string noPermission = " couldn’t be opened because you don’t have permission to view it.";
    EXPECT_EQ(reading("pipe"), Told("The file “pipe” couldn’t be opened.", EINVAL));
    EXPECT_EQ(reading("."), Told("The file “.” couldn’t be opened.", EINVAL));
    EXPECT_EQ(reading("none"), Told("The file “none” couldn’t be opened because there is no such file.", ENOENT));
    EXPECT_EQ(reading("secret"), Told("The file “secret”" + noPermission, EACCES));
    EXPECT_EQ(listing("pipe"), Told("The file “pipe” couldn’t be opened.", ENOTDIR));
    EXPECT_EQ(listing("none"), Told("The folder “none” doesn’t exist.", ENOENT));
    EXPECT_EQ(listing("locked"), Told("The file “locked”" + noPermission, EACCES));
    ASSERT_TRUE(!isRoot || seteuid(0) == 0);
    std::filesystem::permissions(path("locked"), perms::owner_all);
}

} // namespace
} // namespace corvellane
