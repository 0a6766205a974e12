#pragma once

#include <cstdint>
#include <string>

namespace corvellane {

/// Bytes for a person, from a thousand on rounded up to a tenth of a unit: `999 bytes`, `12.4 MB`.
std::string sizeInWords(std::uintmax_t bytes);

} // namespace corvellane
