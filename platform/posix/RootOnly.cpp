#include "platform/posix/RootOnly.h"

#include <sys/stat.h>

#include <filesystem>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

bool isRootsAlone(const fs::path& path)
{
    struct stat status { };
    if (lstat(path.c_str(), &status) != 0 || status.st_uid != 0) {
        return false;
    }
    const bool othersMayWrite = !S_ISLNK(status.st_mode) && (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
    const bool isSticky = S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0;
    return !othersMayWrite || isSticky;
}

bool isRootsAloneFromTheTop(const fs::path& path)
{
    return isRootsAlone(path) && (path == path.root_path() || isRootsAloneFromTheTop(path.parent_path()));
}

} // namespace

bool onlyRootCanChange(const std::string& path)
{
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return !error && isRootsAloneFromTheTop(real);
}

bool onlyRootCanChangeTree(const std::string& folder)
{
    std::error_code error;
    fs::recursive_directory_iterator entry(fs::canonical(folder, error), error);
    bool isRoots = !error && onlyRootCanChange(folder);
    for (; isRoots && !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        isRoots = isRootsAlone(entry->path());
    }
    return isRoots && !error;
}

} // namespace corvellane
