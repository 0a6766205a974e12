#include "view/qt/Pictures.h"

#include "view/qt/Accessibility.h"
#include "view/qt/Appearance.h"

#include <QPainter>
#include <QPixmapCache>
#include <QResource>
#include <QSvgRenderer>

namespace corvellane::view {
namespace {

/// Whether there was a picture to paint.
bool paintBytes(QPainter& painter, const QRect& place, const QByteArray& bytes)
{
    if (bytes.startsWith("\x89PNG")) {
        const QImage image = QImage::fromData(bytes, "PNG");
        if (!image.isNull()) {
            painter.drawImage(place, image.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        }
        return !image.isNull();
    }
    QSvgRenderer renderer(bytes);
    renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
    renderer.render(&painter, place);
    return renderer.isValid();
}

/// What was drawn from the source before; else what the bytes, which are then asked for, have to draw.
QPixmap keptPicture(const QString& source, const QColor& tint, const QSize& size, double devicePixelRatio,
    const std::function<QByteArray()>& bytes)
{
    const QSize pixels = (QSizeF(size) * devicePixelRatio).toSize();
    if (pixels.isEmpty()) {
        return {};
    }
    const QString key = QStringLiteral("%1 %2 %3x%4").arg(source, tint.name()).arg(pixels.width()).arg(pixels.height());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = tintedPicture(bytes(), tint, pixels);
        if (picture.isNull()) {
            return {};
        }
        QPixmapCache::insert(key, picture);
    }
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

} // namespace

QPixmap tintedPicture(const QByteArray& bytes, const QColor& tint, const QSize& pixels)
{
    QPixmap picture(pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    if (!paintBytes(painter, picture.rect(), bytes)) {
        return {};
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), tint);
    return picture;
}

QPixmap symbolPicture(const std::string& name, const QColor& tint, const QSize& size, double devicePixelRatio)
{
    const QString resource = QStringLiteral(":/symbols/") + QString::fromStdString(name) + QStringLiteral(".svg");
    return keptPicture(
        resource, tint, size, devicePixelRatio, [&resource] { return QResource(resource).uncompressedData(); });
}

void FillArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setOpacity(element().opacity);
    painter.fillRect(rect(), colorOf(element().tint));
}

void SymbolPicture::paintEvent(QPaintEvent*)
{
    QPainter(this).drawPixmap(
        0, 0, symbolPicture(element().name, colorOf(element().tint), size(), devicePixelRatioF()));
}

void ImagePicture::paintEvent(QPaintEvent*)
{
    std::string why;
    const auto bytes = [&] {
        const Expected<ImageFile> file = images_.file(element().name);
        why = file ? "The file “" + file->name + "” is no picture." : file.error().message;
        return file ? QByteArray::fromStdString(file->bytes) : QByteArray();
    };
    const QPixmap picture = keptPicture(
        QString::fromStdString(element().name), colorOf(element().tint), size(), devicePixelRatioF(), bytes);
    QPainter painter(this);
    if (picture.isNull()) {
        return paintAlternative(painter, why);
    }
    painter.drawPixmap(0, 0, picture);
}

/// In the largest letters, from those of a title on, that fit.
void ImagePicture::paintAlternative(QPainter& painter, const std::string& why)
{
    const QString words = QString::fromStdString(element().alternative);
    constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
    constexpr int smallest = 8;
    QFont font = fontOf({thirdTitleFont.size, true});
    while (font.pixelSize() > smallest && !rect().contains(QFontMetrics(font).boundingRect(rect(), flags, words))) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    painter.setFont(font);
    painter.setPen(colorOf(element().tint));
    painter.drawText(rect(), flags, words);
    if (accessibleName() != words) {
        nameForAssistance(*this, words);
        images_.missing(why);
    }
}

} // namespace corvellane::view
