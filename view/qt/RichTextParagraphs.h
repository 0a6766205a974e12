#pragma once

#include "rtf/AttributedText.h"

#include <QTextBlockFormat>

namespace corvellane::view {

/// The space between two paragraphs, in points. Of a paragraph next to none, or next to a table, null.
double spaceBetween(
    const rtf::AttributedText& text, const rtf::ParagraphFormat* first, const rtf::ParagraphFormat* second);

/// The indents of a paragraph in points, within what a narrow window can show: a first line that hangs out into the
/// margin pushes the others in. `left` is where lines begin, on the right in a paragraph that runs from right to left.
struct Indents {
    double left;
    double firstLine;
    double right;

    bool operator==(const Indents&) const = default;
};

Indents indentsOf(const rtf::ParagraphFormat& format);

/// Sets the margins of what shows a paragraph: `begin` where its lines begin, `end` where they end.
template <typename Format>
void setSideMargins(Format& shown, const rtf::ParagraphFormat& paragraph, double begin, double end)
{
    const bool isMirrored = paragraph.direction == rtf::Direction::rightToLeft;
    shown.setLeftMargin(isMirrored ? end : begin);
    shown.setRightMargin(isMirrored ? begin : end);
}

/// The format of a paragraph with those indents, without any space around it.
QTextBlockFormat blockFormatFor(
    const rtf::AttributedText& text, const rtf::ParagraphFormat& format, const Indents& indents);

} // namespace corvellane::view
