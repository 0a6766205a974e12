#include "view/qt/RichTextPictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace corvellane::view {
namespace {

constexpr double widestPicture = 400;
constexpr double pointsPerPixel = 0.75;
constexpr int density = 2;

const char* formatName(rtf::Picture::Kind kind)
{
    switch (kind) {
    case rtf::Picture::Kind::png:
        return "png";
    case rtf::Picture::Kind::jpeg:
        return "jpeg";
    case rtf::Picture::Kind::bitmap:
        return "bmp";
    }
    return "";
}

/// The size in points, of a picture of so many pixels.
QSizeF shownSize(const rtf::Picture& picture, QSize pixels)
{
    QSizeF size = QSizeF(pixels) * pointsPerPixel;
    if (picture.width > 0 && picture.height > 0) {
        size = {rtf::points(picture.width), rtf::points(picture.height)};
    }
    return size * std::min(1.0, widestPicture / std::max(size.width(), 1.0));
}

} // namespace

std::optional<QTextImageFormat> addPicture(QTextDocument& document, const rtf::Picture& picture)
{
    QByteArray bytes = QByteArray::fromRawData(picture.bytes.data(), static_cast<qsizetype>(picture.bytes.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, formatName(picture.kind));
    const QSizeF size = shownSize(picture, reader.size());
    const QSize most = (size * density).toSize();
    if (reader.size().width() > most.width() && !most.isEmpty()) {
        reader.setScaledSize(most);
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        return std::nullopt;
    }
    const QString name = QStringLiteral("picture:%1").arg(image.cacheKey());
    document.addResource(QTextDocument::ImageResource, QUrl(name), image);
    QTextImageFormat format;
    format.setName(name);
    format.setWidth(size.width());
    format.setHeight(size.height());
    return format;
}

} // namespace corvellane::view
