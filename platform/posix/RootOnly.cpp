#include "platform/posix/RootOnly.h"

#include <sys/stat.h>

#include <filesystem>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

/// What of a folder that anybody can write to, but where nobody can replace what is another's.
enum class Sticky { refused, accepted };

bool isRootsAlone(const fs::path& path, Sticky sticky)
{
    struct stat status{};
    if (lstat(path.c_str(), &status) != 0 || status.st_uid != 0) {
        return false;
    }
    const bool othersMayWrite = !S_ISLNK(status.st_mode) && (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
    const bool isSticky = S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0;
    return !othersMayWrite || (isSticky && sticky == Sticky::accepted);
}

bool foldersAboveAreRootsAlone(const fs::path& path)
{
    const fs::path folder = path.parent_path();
    return folder == path || (isRootsAlone(folder, Sticky::accepted) && foldersAboveAreRootsAlone(folder));
}

} // namespace

bool onlyRootCanChange(const std::string& path)
{
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return !error && isRootsAlone(real, Sticky::refused) && foldersAboveAreRootsAlone(real);
}

bool onlyRootCanChangeTree(const std::string& folder)
{
    std::error_code error;
    fs::recursive_directory_iterator entry(fs::canonical(folder, error), error);
    bool isRoots = !error && onlyRootCanChange(folder);
    for (; isRoots && !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        isRoots = isRootsAlone(entry->path(), Sticky::refused);
    }
    return isRoots && !error;
}

} // namespace corvellane
