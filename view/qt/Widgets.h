#pragma once

#include "view/View.h"

class QString;
class QWidget;

namespace corvellane::view {

class Resources;

/// The one place that knows which kind of widget stands for which kind of element.
class Widgets {
public:
    /// The resources outlive this.
    explicit Widgets(const Resources& resources)
        : resources_(resources)
    {
    }

    /// A widget that shows the element, inside `parent`; null for an element without one.
    QWidget* make(const Element& element, QWidget* parent) const;

    /// Makes a widget that was made for an element of the same kind show this one.
    void change(QWidget& widget, const Element& element) const;

    /// Has the widget follow what a new element brings along although it compares equal: its action, and what it only
    /// borrows.
    static void follow(QWidget& widget, const Element& element);

private:
    QString imageFile(const std::string& name) const;

    const Resources& resources_;
};

} // namespace corvellane::view
