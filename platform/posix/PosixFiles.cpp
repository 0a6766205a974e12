#include "platform/posix/PosixFiles.h"

#include "base/PathNames.h"
#include "platform/posix/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

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

std::optional<bool> isFolder(const fs::directory_entry& entry)
{
    std::error_code error;
    const bool isFolder = !entry.is_symlink(error) && entry.is_directory(error);
    return error ? std::nullopt : std::optional(isFolder);
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
    std::vector<FolderEntry> entries;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        entries.push_back({entry->path().native(), isFolder(*entry)});
    }
    if (error) {
        return cannotList(folder, error.value());
    }
    std::ranges::sort(entries, {}, &FolderEntry::path);
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
