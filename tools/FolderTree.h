#pragma once

#include <string>
#include <vector>

namespace corvellane {

/// What stands below `folder`, itself left out, sorted by path: one line an entry with its type, a file's size in
/// bytes, its path from `folder` on, and a link's target. Links are not followed.
std::vector<std::string> describeTree(const std::string& folder);

} // namespace corvellane
