#include "helper/MadeFolders.h"

#include "helper/Execution.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace corvellane::runner {
namespace {

constexpr const char* mark = "user.corvellane.made";

/// What the folder lies in; empty for what lies in "/".
std::string above(const std::string& folder)
{
    return folder.substr(0, folder.find_last_of('/'));
}

std::string withoutEnd(std::string path)
{
    while (path.ends_with('/')) {
        path.pop_back();
    }
    return path;
}

/// Whether a folder that cannot be removed is one that simply stays.
bool mayStay(int error)
{
    return error == ENOTEMPTY || error == EEXIST || error == EBUSY || error == ENOENT;
}

} // namespace

MadeFolders::MadeFolders(const InstallCommand& command)
{
    if (const auto* made = std::get_if<MakeFolder>(&command)) {
        folder_ = withoutEnd(made->path);
        there_ = nearestThere(folder_);
    }
}

MadeFolders::~MadeFolders()
{
    for (; folder_.size() > there_.size(); folder_ = above(folder_)) {
        lsetxattr(folder_.c_str(), mark, "", 0, 0);
    }
}

bool isMarkedMade(const std::string& folder)
{
    return lgetxattr(folder.c_str(), mark, nullptr, 0) >= 0;
}

Reply removeMade(std::string folder)
{
    folder = withoutEnd(std::move(folder));
    for (; !folder.empty(); folder = above(folder)) {
        const bool isMade = isMarkedMade(folder);
        if (!isMade && errno != ENOENT) {
            return {};
        }
        if (isMade && rmdir(folder.c_str()) != 0) {
            return mayStay(errno)
                ? Reply()
                : Reply{1, {}, "rmdir: failed to remove '" + folder + "': " + std::strerror(errno) + "\n"};
        }
    }
    return {};
}

} // namespace corvellane::runner
