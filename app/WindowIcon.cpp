#include "app/WindowIcon.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QTimer>

#include <chrono>

namespace corvellane {
namespace {

QIcon packagedIcon()
{
    QSvgRenderer picture(QStringLiteral(":/com.corvellane.PluginInstaller.svg"));
    QIcon icon;
    for (const int points : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixels(points, points);
        pixels.fill(Qt::transparent);
        QPainter painter(&pixels);
        picture.render(&painter);
        painter.end();
        icon.addPixmap(pixels);
    }
    return icon;
}

} // namespace

void showIcon(QWidget& window)
{
    // The first picture of the window goes first.
    QTimer::singleShot(std::chrono::milliseconds(100), &window, [&window] { window.setWindowIcon(packagedIcon()); });
}

} // namespace corvellane
