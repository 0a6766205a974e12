#pragma once

#include "view/View.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>

#include <functional>
#include <string>

namespace corvellane::view {

/// The images of the program's resources, by their names.
struct Images {
    /// The path; empty where there is none.
    std::function<std::string(const std::string& name)> file;
    /// There is none, or it cannot be drawn.
    std::function<void(const std::string& name)> missing;
};

/// The file of a symbol image of the program's own.
QString symbolFile(const std::string& name);

/// The picture, of SVG or of PNG (".png"), in one colour, stretched to `size` device-independent pixels and drawn for
/// the screen's own pixels; empty when it cannot be read. Drawn once and kept.
QPixmap tintedPicture(const QString& file, const QColor& tint, const QSize& size, double devicePixelRatio);

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

/// The widget of a symbol or of an image of the resources, or of the words in its place; fills its frame.
class Picture : public QWidget {
public:
    Picture(QWidget* parent, const Images& images)
        : QWidget(parent)
        , images_(images)
    {
    }

    void present(const QString& file, const Image& image);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintAlternative(QPainter& painter);

    const Images& images_;
    QString file_;
    Image image_;
};

} // namespace corvellane::view
