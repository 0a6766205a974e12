#pragma once

#include "rtf/AttributedText.h"

#include <QColor>
#include <QTextCharFormat>

namespace corvellane::view {

/// Around the text, in points.
constexpr double pageMargin = 8;

QColor colorOf(const rtf::Color& color);

/// The format of `attributes`, which are some of `text`'s. A point is one device-independent pixel, as in all lengths
/// of the window; sizes of fonts grow with the window's texts and are rounded to whole pixels, which are all that Qt
/// sets text in. The colour of text without one of its own is left to the palette.
QTextCharFormat charFormatFor(const rtf::TextAttributes& attributes, const rtf::AttributedText& text);

} // namespace corvellane::view
