#include "view/qt/Pictures.h"

#include "view/qt/Appearance.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace corvellane::view {
namespace {

QPixmap drawn(const QString& file, const QColor& tint, const QSize& pixels)
{
    QPixmap picture(pixels);
    picture.fill(Qt::transparent);
    QSvgRenderer renderer(file);
    renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
    QPainter painter(&picture);
    renderer.render(&painter, picture.rect());
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), tint);
    return picture;
}

} // namespace

QString symbolFile(const std::string& name)
{
    return QStringLiteral(":/symbols/") + QString::fromStdString(name) + QStringLiteral(".svg");
}

QPixmap tintedPicture(const QString& file, const QColor& tint, const QSize& size, double devicePixelRatio)
{
    const QSize pixels = (QSizeF(size) * devicePixelRatio).toSize();
    if (pixels.isEmpty() || file.isEmpty()) {
        return {};
    }
    const QString key = QStringLiteral("%1 %2 %3x%4").arg(file, tint.name()).arg(pixels.width()).arg(pixels.height());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = drawn(file, tint, pixels);
        QPixmapCache::insert(key, picture);
    }
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

void FillArea::present(const Fill& fill)
{
    fill_ = fill;
    update();
}

void FillArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setOpacity(fill_.opacity);
    painter.fillRect(rect(), colorOf(fill_.tint));
}

void Picture::present(const QString& file, Tint tint)
{
    file_ = file;
    tint_ = tint;
    update();
}

void Picture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, tintedPicture(file_, colorOf(tint_), size(), devicePixelRatioF()));
}

} // namespace corvellane::view
