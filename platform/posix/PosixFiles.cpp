#include "platform/posix/PosixFiles.h"

#include "base/PathNames.h"
#include "platform/posix/FileDescriptor.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string_view>

namespace corvellane {
namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

Unexpected cannotOpen(const std::string& path, int error)
{
    const std::string file = "The file “" + std::string(lastPathComponent(path)) + "” couldn’t be opened";
    switch (error) {
    case ENOENT:
        return Unexpected({file + " because there is no such file.", error});
    case EACCES:
    case EPERM:
        return Unexpected({file + " because you don’t have permission to view it.", error});
    default:
        return Unexpected({file + ".", error});
    }
}

Unexpected cannotList(const std::string& folder, int error)
{
    if (error == ENOENT) {
        return Unexpected({"The folder “" + std::string(lastPathComponent(folder)) + "” doesn’t exist.", error});
    }
    return cannotOpen(folder, error);
}

/// What the entry's record does not tell is asked of the file itself.
std::optional<bool> isFolder(DIR* folder, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN) {
        return entry.d_type == DT_DIR;
    }
    struct stat status{};
    const int descriptor = dirfd(folder);
    if (descriptor < 0 || fstatat(descriptor, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return std::nullopt;
    }
    return S_ISDIR(status.st_mode);
}

bool isOwnOrParentFolder(std::string_view name)
{
    return name == "." || name == "..";
}

/// Fills `bytes` as far as the file goes; an error number, or 0.
int fill(const FileDescriptor& file, std::string& bytes)
{
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = read(file.get(), bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        if (count == 0) {
            break;
        }
        filled += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return 0;
}

} // namespace

Expected<std::vector<FolderEntry>> PosixFiles::list(const std::string& folder) const
{
    const std::unique_ptr<DIR, CloseFolder> handle(opendir(folder.c_str()));
    if (handle == nullptr) {
        return cannotList(folder, errno);
    }
    const std::string base = folder.ends_with('/') ? folder : folder + '/';
    std::vector<FolderEntry> entries;
    errno = 0;
    while (const dirent* entry = readdir(handle.get())) {
        if (!isOwnOrParentFolder(entry->d_name)) {
            entries.push_back({base + entry->d_name, isFolder(handle.get(), *entry)});
        }
        errno = 0;
    }
    if (errno != 0) {
        return cannotList(folder, errno);
    }
    std::ranges::sort(entries, [&](const FolderEntry& left, const FolderEntry& right) {
        return left.path.compare(base.size(), std::string::npos, right.path, base.size()) < 0;
    });
    return entries;
}

Expected<std::string> PosixFiles::read(const std::string& path, std::size_t largest) const
{
    // Opening what is no regular file could wait for ever, and its size says nothing.
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status{};
    if (!file.isOpen() || fstat(file.get(), &status) != 0) {
        return cannotOpen(path, errno);
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    if (!S_ISREG(status.st_mode) || size > largest) {
        return cannotOpen(path, EINVAL);
    }
    std::string bytes(size, '\0');
    const int error = fill(file, bytes);
    if (error != 0) {
        return cannotOpen(path, error);
    }
    return bytes;
}

} // namespace corvellane
