#pragma once

#include <string>
#include <vector>

namespace corvellane {

/// What stands below `folder`, itself left out, sorted by path: one line an entry with its type, its path from `base`
/// on, a file's size in bytes and a link's target. Links are not followed.
std::vector<std::string> describeTree(const std::string& folder, const std::string& base);

} // namespace corvellane
