#include "platform/posix/PosixFileListing.h"

#include "base/PathNames.h"

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

ListingFailure describe(const std::string& folder, int error)
{
    const std::string name = "“" + std::string(lastPathComponent(folder)) + "”";
    switch (error) {
    case ENOENT:
        return {"The folder " + name + " doesn’t exist."};
    case EACCES:
    case EPERM:
        return {"The file " + name + " couldn’t be opened because you don’t have permission to view it."};
    default:
        return {"The file " + name + " couldn’t be opened."};
    }
}

/// What the entry's record does not tell is asked of the file itself.
std::optional<bool> isFolder(DIR* folder, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN) {
        return entry.d_type == DT_DIR;
    }
    struct stat status { };
    if (fstatat(dirfd(folder), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return std::nullopt;
    }
    return S_ISDIR(status.st_mode);
}

bool isOwnOrParentFolder(std::string_view name)
{
    return name == "." || name == "..";
}

} // namespace

FolderListing PosixFileListing::list(const std::string& folder) const
{
    const std::unique_ptr<DIR, CloseFolder> handle(opendir(folder.c_str()));
    if (handle == nullptr) {
        return describe(folder, errno);
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
        return describe(folder, errno);
    }
    std::sort(entries.begin(), entries.end(), [&](const FolderEntry& left, const FolderEntry& right) {
        return left.path.compare(base.size(), std::string::npos, right.path, base.size()) < 0;
    });
    return entries;
}

} // namespace corvellane
