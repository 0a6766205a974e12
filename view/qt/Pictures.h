#pragma once

#include "base/Expected.h"
#include "view/View.h"

#include <QByteArray>
#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QWidget>

#include <functional>
#include <string>

namespace corvellane::view {

/// A file of SVG or of PNG.
struct ImageFile {
    /// Without its folder.
    std::string name;
    std::string bytes;
};

/// The images of the program's resources.
struct Images {
    /// The file of the image of that name; a failure is a sentence.
    std::function<Expected<ImageFile>(const std::string& name)> file;
    /// Words stand in an image's place; why is a sentence.
    std::function<void(const std::string& why)> missing;
};

/// The picture, of SVG or of PNG, in one colour and stretched to so many pixels; null where the bytes are no picture.
QPixmap tintedPicture(const QByteArray& bytes, const QColor& tint, const QSize& pixels);

/// A symbol image of the program's own, by its name, in one colour, stretched to `size` device-independent pixels and
/// drawn for the screen's own pixels. Drawn once and kept.
QPixmap symbolPicture(const std::string& name, const QColor& tint, const QSize& size, double devicePixelRatio);

/// The widget of a filled area.
class FillArea : public QWidget {
public:
    explicit FillArea(QWidget* parent)
        : QWidget(parent)
    {
    }

    void present(const Fill& fill);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Fill fill_;
};

/// The widget of a symbol; fills its frame.
class SymbolPicture : public QWidget {
public:
    explicit SymbolPicture(QWidget* parent)
        : QWidget(parent)
    {
    }

    void present(const Symbol& symbol);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Symbol symbol_;
};

/// The widget of an image of the resources, or of the words in its place; fills its frame.
class ImagePicture : public QWidget {
public:
    ImagePicture(QWidget* parent, const Images& images)
        : QWidget(parent)
        , images_(images)
    {
    }

    void present(const Image& image);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintAlternative(QPainter& painter, const std::string& why);

    const Images& images_;
    Image image_;
};

} // namespace corvellane::view
