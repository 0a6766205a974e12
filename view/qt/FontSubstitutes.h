#pragma once

#include <QStringList>

#include <string_view>

namespace corvellane::view {

/// The families to try in turn for text that its author set in `family`: that one first, then those of the same
/// widths or the same look that are common on this system. A font of symbols stands for Unicode text here, so that it
/// is not tried itself.
QStringList substitutesFor(std::string_view family);

} // namespace corvellane::view
