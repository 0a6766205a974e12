#pragma once

class QWidget;

namespace corvellane {

struct AttributedText;

QWidget* makeRichTextViewer(const AttributedText& text, QWidget* parent);

} // namespace corvellane
