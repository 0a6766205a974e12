#pragma once

#include "view/View.h"
#include "view/qt/Layout.h"

#include <QWidget>

namespace corvellane::view {

/// The widget of a view that holds others; draws the view's backdrop.
class Panel : public QWidget, public Measurable {
public:
    explicit Panel(QWidget* parent);

    /// A modal panel lets no click through to what lies behind it, and is a dialogue to those who do not see it.
    void present(const ViewLayout::Arrangement& arrangement, const Backdrop& backdrop, bool modal);
    bool isModal() const { return modal_; }

    ViewLayout& viewLayout() { return *layout_; }
    Extent widthExtent() const override;
    Extent heightExtent(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showBackdrop(const Backdrop& backdrop);

    ViewLayout* layout_;
    Backdrop backdrop_;
    bool modal_ = false;
};

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

} // namespace corvellane::view
