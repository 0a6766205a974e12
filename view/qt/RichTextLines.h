#pragma once

#include "rtf/AttributedText.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

#include <vector>

class QPainter;
class QRectF;
class QTextDocument;

/// Lines that Qt's formats have no words for: they are kept in the formats, and painted over the text once it is laid
/// out.
namespace corvellane::view {

/// Adds a second line to the underline that `format` has, or makes it a thick one.
void addSecondUnderline(QTextCharFormat& format);
void thickenUnderline(QTextCharFormat& format);

/// A line on all four sides of text, drawn once around what has the same one.
void addFrame(QTextCharFormat& format, const rtf::Border& border);

/// What fills the space of a tab that reaches a stop, by the stops of `format` in their order.
void addLeaders(QTextBlockFormat& format, const std::vector<rtf::TabLeader>& leaders);

bool hasLines(const QTextDocument& document);

/// Paints what there is of such lines in `area`, which is in the document's coordinates, as the painter's are.
void paintLines(QPainter& painter, const QTextDocument& document, const QRectF& area);

} // namespace corvellane::view
