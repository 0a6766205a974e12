#pragma once

#include "view/View.h"
#include "view/qt/Measurable.h"

#include <QWidget>

namespace corvellane::view {

class ViewLayout;

/// The widget of a view that holds others; draws the view's backdrop.
class Panel : public QWidget, public Measurable {
public:
    explicit Panel(QWidget* parent);

    void showBackdrop(const Backdrop& backdrop);

    /// A modal panel lets no click through to what lies behind it, and is a dialogue to those who do not see it.
    void setModal(bool modal);
    bool isModal() const { return modal_; }

    ViewLayout& viewLayout() { return *layout_; }
    Extent widthExtent() const override;
    Extent heightExtent(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
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
