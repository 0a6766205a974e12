#pragma once

#include "view/View.h"

#include <string>
#include <vector>

namespace corvellane::view {

/// The locations of a list's rows, in their order.
std::vector<std::string> locationsOf(const List& list);

/// All rows of a list, in their order.
std::vector<ListRow> rowsOf(const List& list);

} // namespace corvellane::view
