#pragma once

#include <string>

namespace corvellane {

/// A name in canonical composed form (Unicode Standard Annex 15, form C); one that is not valid UTF-8 as it is.
std::string composed(const std::string& name);

/// What two names have in common that differ only in capitals, or in how their letters are composed: on file systems
/// that do not tell those apart they are one.
std::string withoutCapitals(const std::string& name);

} // namespace corvellane
