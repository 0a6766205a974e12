#include "view/qt/TextScale.h"

#include <QApplication>
#include <QFontInfo>

#include <algorithm>

namespace corvellane::view {

namespace {

/// Desktops set their text at 9 to 11 points of 96 dots an inch; what is larger has been asked for.
constexpr double largestUsualPixelSize = 15;

} // namespace

double textScale()
{
    return std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / largestUsualPixelSize);
}

} // namespace corvellane::view
