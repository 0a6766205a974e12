#pragma once

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

} // namespace corvellane
