#include "view/qt/Appearance.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <array>

namespace corvellane::view {
namespace {

struct RoleColor {
    QPalette::ColorRole role;
    QRgb color;
};

constexpr std::array<RoleColor, 20> lightColors{{
    {QPalette::WindowText, 0xff000000},
    {QPalette::Button, 0xfffafafa},
    {QPalette::Light, 0xffffffff},
    {QPalette::Midlight, 0xfff6f6f6},
    {QPalette::Dark, 0xffa0a0a0},
    {QPalette::Mid, 0xffc4c4c6},
    {QPalette::Text, 0xff000000},
    {QPalette::BrightText, 0xffffffff},
    {QPalette::ButtonText, 0xff000000},
    {QPalette::Base, 0xffffffff},
    {QPalette::Window, 0xfff1f1f1},
    {QPalette::Shadow, 0xff76767a},
    {QPalette::Highlight, 0xff0a63d6},
    {QPalette::HighlightedText, 0xffffffff},
    {QPalette::Link, 0xff0a5cc8},
    {QPalette::LinkVisited, 0xff0a5cc8},
    {QPalette::AlternateBase, 0xfff7f7f7},
    {QPalette::ToolTipBase, 0xffffffff},
    {QPalette::ToolTipText, 0xff000000},
    {QPalette::PlaceholderText, 0xff6e6e73},
}};

/// Desktops set their text at 9 to 11 points of 96 dots an inch; what is larger has been asked for.
constexpr double largestUsualPixelSize = 15;

/// Points wide.
constexpr double focusLine = 1.5;

/// Found without having the font loaded: the window draws with it in other sizes.
int pixelSizeOf(const QFont& font)
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const int dotsPerInch = screen != nullptr ? qRound(screen->logicalDotsPerInchY()) : 96;
    return font.pixelSize() > 0 ? font.pixelSize() : qRound(font.pointSizeF() * dotsPerInch / 72);
}

} // namespace

QColor colorOf(Tint tint)
{
    switch (tint) {
    case Tint::white:
        return QColor::fromRgb(0xffffffff);
    case Tint::blue:
        return QColor::fromRgb(0xff007aff);
    case Tint::gray:
        return QColor::fromRgb(0xff8e8e93);
    case Tint::green:
        return QColor::fromRgb(0xff28a745);
    case Tint::red:
        return QColor::fromRgb(0xffff3b30);
    case Tint::secondaryLabel:
        return QColor::fromRgb(0xff7f7f7f);
    case Tint::separator:
        return QColor::fromRgb(0xffd8d8d8);
    case Tint::windowBackground:
        return {241, 241, 241};
    case Tint::black:
    case Tint::label:
        break;
    }
    return QColor::fromRgb(0xff000000);
}

QPalette lightPalette()
{
    QPalette palette;
    for (const auto& [role, color] : lightColors) {
        palette.setColor(QPalette::All, role, QColor::fromRgb(color));
    }
    for (const QPalette::ColorRole label : {QPalette::ButtonText, QPalette::Text}) {
        palette.setColor(QPalette::Disabled, label, QColor::fromRgb(0xffa8a8ac));
    }
    return palette;
}

void paintFocusFrame(QPainter& painter, const QRectF& area, double cornerRadius)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colorOf(Tint::blue), focusLine));
    painter.setBrush(Qt::NoBrush);
    constexpr double half = focusLine / 2;
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), cornerRadius, cornerRadius);
}

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

double textScale()
{
    return std::max(1.0, pixelSizeOf(QApplication::font()) / largestUsualPixelSize);
}

} // namespace corvellane::view
