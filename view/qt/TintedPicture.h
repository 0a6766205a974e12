#pragma once

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace corvellane::view {

/// The file of a symbol image of the program's own.
QString symbolFile(const std::string& name);

/// The SVG picture in one colour, stretched to `size` device-independent pixels and drawn for the screen's own pixels;
/// empty when it cannot be read. Drawn once and kept.
QPixmap tintedPicture(const QString& file, const QColor& tint, const QSize& size, double devicePixelRatio);

} // namespace corvellane::view
