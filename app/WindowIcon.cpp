#include "app/WindowIcon.h"

#include "app/ResourceBytes.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QResource>
#include <QSvgRenderer>
#include <QTimer>

#include <chrono>

namespace corvellane {
namespace {

QIcon iconOf(const Resources& resources, const Files& files)
{
    constexpr std::size_t largest = 16 << 20;
    const std::string makersOwn = bytesOf(resources, files, "Icon", "svg", largest);
    QSvgRenderer picture;
    if (makersOwn.empty() || !picture.load(QByteArray::fromStdString(makersOwn))) {
        picture.load(QResource(QStringLiteral(":/com.corvellane.PluginInstaller.svg")).uncompressedData());
    }
    picture.setAspectRatioMode(Qt::KeepAspectRatio);
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

void showIcon(QWidget& window, const Resources& resources, const Files& files)
{
    // The first picture of the window goes first.
    QTimer::singleShot(std::chrono::milliseconds(100), &window,
        [&window, &resources, &files] { window.setWindowIcon(iconOf(resources, files)); });
}

} // namespace corvellane
