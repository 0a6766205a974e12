#pragma once

#include "view/View.h"
#include "view/qt/Layout.h"

#include <QLabel>
#include <QTextLayout>

namespace corvellane::view {

/// The widget of a text. No markup, no mnemonics. Lines that wrap are about equally long.
class TextLabel : public QLabel, public Measurable {
public:
    explicit TextLabel(QWidget* parent);

    /// In the person's language.
    static QString wordsOf(const Text& text);

    void present(const Text& text);

    /// From the longest stretch without a line break to all of it in one line.
    Extent widthExtent() const override;
    Extent heightExtent(int width) const override;
    QSize sizeHint() const override { return {widths_.maximum, naturalHeight_}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void measure();
    QSizeF sizeInLines(int width) const;
    int balancedWidth(int width) const;
    void balance();

    /// Never ends its layout, at which it would forget the shapes of the letters: they serve all widths.
    mutable QTextLayout lines_;
    double leading_ = 0;
    Extent widths_;
    int naturalHeight_ = 0;
    mutable int measuredWidth_ = -1;
    mutable int measuredHeight_ = 0;
};

} // namespace corvellane::view
