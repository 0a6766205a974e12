#pragma once

#include <string>
#include <vector>

namespace corvellane {

/// Paths of folders, ascending by the folders' names. Names are compared by their Unicode scalar values in canonical
/// composed form (Unicode Standard Annex 15, form C); one that is not valid UTF-8 is compared by its bytes. Equal
/// names stand in the order of their paths.
std::vector<std::string> inDisplayOrder(std::vector<std::string> locations);

} // namespace corvellane
