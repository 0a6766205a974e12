#pragma once

#include <string>
#include <string_view>

namespace corvellane {

/// The last component of a path, unchanged; a trailing "/" does not count as one.
inline std::string_view lastPathComponent(std::string_view path)
{
    while (path.size() > 1 && path.ends_with('/')) {
        path.remove_suffix(1);
    }
    return path.substr(path.rfind('/') + 1);
}

/// The path without "/" at its end, unless it is "/".
inline std::string withoutEnd(std::string path)
{
    while (path.size() > 1 && path.ends_with('/')) {
        path.pop_back();
    }
    return path;
}

/// What the path, which has no "/" at its end, lies in; empty for what lies in "/".
inline std::string folderOf(const std::string& path)
{
    return path.substr(0, path.rfind('/'));
}

} // namespace corvellane
