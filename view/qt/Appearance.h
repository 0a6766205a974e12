#pragma once

#include "view/View.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

class QPainter;
class QRectF;

namespace corvellane::view {

QColor colorOf(Tint tint);

/// The light scheme, the same for windows with and without the focus; every role of every group is set.
QPalette lightPalette();

/// Draws the frame of what has the keyboard focus along the inside of `area`.
void paintFocusFrame(QPainter& painter, const QRectF& area, double cornerRadius = 0);

/// What the table of translated texts has for the key; the key itself where it has nothing.
QString localized(const std::string& key);

/// The system's font at that size; larger where the desktop's text is larger than usual.
QFont fontOf(const Font& font);

/// How much larger than their points all texts of the window are set: more than 1 where the desktop's own font is
/// larger than usual. Needs a QApplication.
double textScale();

} // namespace corvellane::view
