#pragma once

#include "view/View.h"
#include "view/qt/Layout.h"

#include <functional>
#include <string>

namespace corvellane::view {

/// The one place that knows which kind of widget stands for which kind of element.
class Widgets {
public:
    /// The path of an image of the program's resources by its name; empty where there is none.
    using ImageFiles = std::function<std::string(const std::string& name)>;

    /// While `deaf` is true, no widget performs an action. It outlives all widgets.
    Widgets(ImageFiles imageFiles, const bool& deaf)
        : imageFiles_(std::move(imageFiles))
        , deaf_(deaf)
    {
    }

    /// Has the widget that stands for a view of the same kind show this one; where there is none, one is made inside
    /// `parent`.
    Standing present(const View& view, const Standing& standing, QWidget* parent) const;

private:
    ImageFiles imageFiles_;
    const bool& deaf_;
};

} // namespace corvellane::view
