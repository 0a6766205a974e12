#include "platform/posix/PosixFiles.h"
#include "tests/ScratchFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace corvellane {
namespace {

class FilesTest : public testing::Test {
protected:
    /// Fails unless reading the file of that name gives the failure.
    void expectFailure(const std::string& name, const std::string& message, int number)
    {
        const auto bytes = PosixFiles().read(scratch.path() + "/" + name, 5);
        ASSERT_FALSE(bytes) << name;
        EXPECT_EQ(bytes.error().message, message);
        EXPECT_EQ(bytes.error().number, number) << name;
    }

    ScratchFolder scratch;
};

TEST_F(FilesTest, readsRegularFilesUpToTheLargestSize)
{
    for (const std::string& bytes : {std::string(), std::string("\xFF\0\r\n\x80", 5)}) {
        scratch.write("file", bytes);
        EXPECT_EQ(PosixFiles().read(scratch.path() + "/file", 5).value(), bytes);
    }
    scratch.write("large", "123456");
    expectFailure("large", "The file “large” couldn’t be opened.", EINVAL);
}

TEST_F(FilesTest, waitsForNothingThatIsNoRegularFile)
{
    ASSERT_EQ(mkfifo((scratch.path() + "/pipe").c_str(), 0600), 0);
    std::filesystem::create_directory(scratch.path() + "/folder");
    expectFailure("pipe", "The file “pipe” couldn’t be opened.", EINVAL);
    expectFailure("folder", "The file “folder” couldn’t be opened.", EINVAL);
    expectFailure("none", "The file “none” couldn’t be opened because there is no such file.", ENOENT);
}

TEST_F(FilesTest, saysThatPermissionIsMissing)
{
    scratch.write("secret", "a");
    std::filesystem::permissions(scratch.path() + "/secret", std::filesystem::perms::none);
    std::filesystem::permissions(scratch.path(), std::filesystem::perms::all);
    // Root may read everything: for the moment of the test the process is somebody else.
    const bool isRoot = geteuid() == 0;
    ASSERT_TRUE(!isRoot || seteuid(65534) == 0);
    expectFailure(
        "secret", "The file “secret” couldn’t be opened because you don’t have permission to view it.", EACCES);
    ASSERT_TRUE(!isRoot || seteuid(0) == 0);
}

} // namespace
} // namespace corvellane
