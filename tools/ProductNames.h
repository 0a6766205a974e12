#pragma once

#include <string>
#include <vector>

namespace corvellane {

/// The product of that name: of exactly that one, or of one that looks the same, or is printed so. Null for none.
const std::string* productNamed(const std::vector<std::string>& locations, const std::string& name);

} // namespace corvellane
