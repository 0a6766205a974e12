#pragma once

#include <string>

namespace corvellane {

/// Whether only root can change what the path leads to, links resolved: neither it nor any folder above it belongs to
/// anybody else or can be written by others. Folders above it may have the sticky bit instead: there nobody can replace
/// what is root's.
bool onlyRootCanChange(const std::string& path);

/// The same of everything below a folder as well; links in there are not followed.
bool onlyRootCanChangeTree(const std::string& folder);

} // namespace corvellane
