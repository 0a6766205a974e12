#pragma once

#include "view/View.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>

namespace corvellane::view {

/// The file of a symbol image of the program's own.
QString symbolFile(const std::string& name);

/// The SVG picture in one colour, stretched to `size` device-independent pixels and drawn for the screen's own pixels;
/// empty when it cannot be read. Drawn once and kept.
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
    explicit Picture(QWidget* parent)
        : QWidget(parent)
    {
    }

    void present(const QString& file, const Image& image);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintAlternative(QPainter& painter);

    QString file_;
    Image image_;
};

} // namespace corvellane::view
