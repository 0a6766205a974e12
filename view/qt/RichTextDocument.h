#pragma once

#include "rtf/AttributedText.h"

class QTextDocument;

namespace corvellane::view {

/// Replaces what is in `document`, which keeps no record for undoing, by `text` with all its formatting. A length of
/// one point becomes one device-independent pixel; sizes of fonts grow with all texts of the window where the desktop's
/// own font is large. The space between two paragraphs all belongs to the lower one, for of two spaces Qt shows the
/// greater; above the first paragraph there is none. Paragraphs with borders or shading stand in a table of one cell,
/// and no table is wider than the document. Needs a QApplication; main thread.
void fillTextDocument(QTextDocument& document, const rtf::AttributedText& text);

} // namespace corvellane::view
