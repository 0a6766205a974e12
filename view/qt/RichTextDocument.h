#pragma once

#include "rtf/AttributedText.h"

class QTextDocument;

namespace corvellane::view {

/// Replaces what is in `document`, which keeps no record for undoing, by `text` with all its formatting. A length of
/// one point becomes one device-independent pixel; sizes of fonts grow with all texts of the window where the desktop's
/// own font is large. Needs a QApplication; main thread.
void fillTextDocument(QTextDocument& document, const rtf::AttributedText& text);

} // namespace corvellane::view
