#include "view/qt/Pictures.h"

#include "view/qt/Accessibility.h"
#include "view/qt/Appearance.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace corvellane::view {
namespace {

/// Whether there was a picture to paint.
bool paintFile(QPainter& painter, const QRect& place, const QString& file)
{
    if (file.endsWith(QLatin1String(".png"))) {
        const QImage image(file, "PNG");
        if (!image.isNull()) {
            painter.drawImage(place, image.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        }
        return !image.isNull();
    }
    QSvgRenderer renderer(file);
    renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
    renderer.render(&painter, place);
    return renderer.isValid();
}

QPixmap drawn(const QString& file, const QColor& tint, const QSize& pixels)
{
    QPixmap picture(pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    if (!paintFile(painter, picture.rect(), file)) {
        return {};
    }
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

void Picture::present(const QString& file, const Image& image)
{
    file_ = file;
    image_ = image;
    update();
}

void Picture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QPixmap picture = tintedPicture(file_, colorOf(image_.tint), size(), devicePixelRatioF());
    if (picture.isNull()) {
        return paintAlternative(painter);
    }
    painter.drawPixmap(0, 0, picture);
}

/// In the largest letters, from those of a title on, that fit.
void Picture::paintAlternative(QPainter& painter)
{
    const QString words = QString::fromStdString(image_.alternative);
    constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
    constexpr int smallest = 8;
    QFont font = fontOf({thirdTitleFont.size, true});
    while (font.pixelSize() > smallest && !rect().contains(QFontMetrics(font).boundingRect(rect(), flags, words))) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    painter.setFont(font);
    painter.setPen(colorOf(image_.tint));
    painter.drawText(rect(), flags, words);
    if (accessibleName() != words) {
        nameForAssistance(*this, words);
        images_.missing(image_.name);
    }
}

} // namespace corvellane::view
