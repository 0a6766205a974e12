#include "platform/posix/EntryStatus.h"

#include "platform/posix/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <memory>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

/// As much as a processor keeps at hand.
constexpr std::size_t blockSize = std::size_t{1} << 17U;

Unexpected cannotRead(int error)
{
    return Unexpected({std::strerror(error), error});
}

fs::file_type typeOf(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return fs::file_type::regular;
    case S_IFDIR:
        return fs::file_type::directory;
    case S_IFLNK:
        return fs::file_type::symlink;
    default:
        return fs::file_type::unknown;
    }
}

/// A file that is read from its beginning to its end, block by block.
class BlockReader {
public:
    explicit BlockReader(const std::string& path)
        : file_(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY))
        , error_(file_.isOpen() ? 0 : errno)
    {
    }

    int error() const { return error_; }

    /// The next block, which is shorter only at the end; empty there, and at an error.
    std::string_view next()
    {
        std::size_t filled = 0;
        while (error_ == 0 && filled < blockSize) {
            const ssize_t count = read(file_.get(), block_.get() + filled, blockSize - filled);
            if (count == 0) {
                break;
            }
            error_ = count < 0 && errno != EINTR ? errno : 0;
            filled += count < 0 ? 0 : static_cast<std::size_t>(count);
        }
        return {block_.get(), error_ == 0 ? filled : 0};
    }

private:
    FileDescriptor file_;
    int error_;
    // NOLINTNEXTLINE(modernize-avoid-c-arrays): not filled before it is read into, as most files are shorter
    std::unique_ptr<char[]> block_ = std::make_unique_for_overwrite<char[]>(blockSize);
};

} // namespace

Expected<EntryStatus> entryStatus(const std::string& path)
{
    struct stat found{};
    if (lstat(path.c_str(), &found) != 0) {
        EntryStatus nothing{.type = fs::file_type::not_found};
        return errno == ENOENT || errno == ENOTDIR ? Expected<EntryStatus>(nothing) : cannotRead(errno);
    }
    EntryStatus status{typeOf(found.st_mode), static_cast<fs::perms>(found.st_mode & 07777U), found.st_uid,
        static_cast<std::uintmax_t>(found.st_size), {}};
    if (status.type == fs::file_type::symlink) {
        std::error_code error;
        status.target = fs::read_symlink(path, error).native();
    }
    return status;
}

Expected<bool> haveSameBytes(const std::string& path, const std::string& other)
{
    BlockReader reader(path);
    BlockReader otherReader(other);
    std::string_view block;
    bool isSame = true;
    do {
        block = reader.next();
        isSame = block == otherReader.next();
    } while (isSame && !block.empty());
    const int error = reader.error() != 0 ? reader.error() : otherReader.error();
    return error == 0 ? Expected<bool>(isSame) : cannotRead(error);
}

Expected<bool> holdsBytes(const std::string& path, std::string_view bytes)
{
    BlockReader reader(path);
    for (auto block = reader.next(); !block.empty(); block = reader.next()) {
        if (!bytes.starts_with(block)) {
            return false;
        }
        bytes.remove_prefix(block.size());
    }
    return reader.error() == 0 ? Expected<bool>(bytes.empty()) : cannotRead(reader.error());
}

} // namespace corvellane
