#pragma once

#include "view/View.h"
#include "view/qt/Layout.h"
#include "view/qt/Pictures.h"

namespace corvellane::view {

/// The one place that knows which kind of widget stands for which kind of element.
class Widgets {
public:
    /// While `deaf` is true, no widget performs an action. It outlives all widgets.
    Widgets(Images images, const bool& deaf)
        : images_(std::move(images))
        , deaf_(deaf)
    {
    }

    /// Has the widget that stands for a view of the same kind show this one; where there is none, one is made inside
    /// `parent`.
    Standing present(const View& view, const Standing& standing, QWidget* parent) const;

private:
    Images images_;
    const bool& deaf_;
};

} // namespace corvellane::view
