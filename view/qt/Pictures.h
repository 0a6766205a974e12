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

/// A widget that paints an element as it was last given.
template <typename Element>
class Painted : public QWidget {
public:
    explicit Painted(QWidget* parent)
        : QWidget(parent)
    {
    }

    void present(const Element& element)
    {
        element_ = element;
        update();
    }

protected:
    const Element& element() const { return element_; }

private:
    Element element_;
};

/// The widget of a filled area.
class FillArea : public Painted<Fill> {
public:
    using Painted::Painted;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The widget of a symbol; fills its frame.
class SymbolPicture : public Painted<Symbol> {
public:
    using Painted::Painted;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The widget of an image of the resources, or of the words in its place; fills its frame.
class ImagePicture : public Painted<Image> {
public:
    ImagePicture(QWidget* parent, const Images& images)
        : Painted(parent)
        , images_(images)
    {
    }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintAlternative(QPainter& painter, const std::string& why);

    const Images& images_;
};

} // namespace corvellane::view
