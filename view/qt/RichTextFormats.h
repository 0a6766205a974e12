#pragma once

#include "rtf/AttributedText.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

namespace corvellane::view {

/// The format of `attributes`, which are some of `text`'s. A point is one device-independent pixel, as in all lengths
/// of the window; sizes of fonts grow with the window's texts and are rounded to whole pixels, which are all that Qt
/// sets text in. The colour of text without one of its own is left to the palette.
QTextCharFormat charFormatFor(const rtf::TextAttributes& attributes, const rtf::AttributedText& text);

/// The format of the paragraph at `index`. The space between two paragraphs all belongs to the lower one, for of two
/// spaces Qt shows the greater; above the first paragraph there is none. Indents are kept within what a narrow window
/// can show.
QTextBlockFormat blockFormatFor(const rtf::AttributedText& text, std::size_t index);

} // namespace corvellane::view
