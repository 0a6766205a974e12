#include "ui/qt/Words.h"

#include <QApplication>
#include <QFontInfo>

#include <algorithm>

namespace corvellane {
namespace {

/// Desktops set their text at 9 to 11 points of 96 dots an inch; what is larger has been asked for.
constexpr double largestUsualPixelSize = 15;

double textScale()
{
    return std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / largestUsualPixelSize);
}

} // namespace

QString localized(const std::string& key)
{
    return QCoreApplication::translate("Installer", key.c_str());
}

QFont fontOf(const Font& font)
{
    QFont result = QApplication::font();
    result.setPixelSize(qRound(font.size * textScale()));
    result.setBold(font.bold);
    return result;
}

} // namespace corvellane
