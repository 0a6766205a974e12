#pragma once

class QTextDocument;

namespace corvellane {

struct AttributedText;

/// Replaces what is in `document`, which keeps no record for undoing, by `text` with all its formatting. A length of
/// one point becomes one device-independent pixel. Needs a QGuiApplication; main thread.
void fillTextDocument(QTextDocument& document, const AttributedText& text);

} // namespace corvellane
