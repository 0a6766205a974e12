#pragma once

#include "rtf/AttributedText.h"

#include <QStringList>

namespace corvellane::view {

/// The families to try in turn for text that its author set in `family`: that one first, then the one that the author
/// names in its place, then those of the same widths or the same look that are common on this system: known by the
/// name, or else of the family's class and language. A font of symbols stands for Unicode text here, so that it is not
/// tried itself.
QStringList substitutesFor(const rtf::FontFamily& family);

} // namespace corvellane::view
