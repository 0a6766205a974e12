#pragma once

#include "view/View.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace corvellane::view {

/// What stands on the screen for one view of the tree.
struct Mounted {
    /// What it shows, without the children.
    View shown;
    /// Null for views that draw nothing and hold nothing. Belongs to the parent's widget.
    QWidget* widget = nullptr;
    std::vector<std::unique_ptr<Mounted>> children;

    template <typename Kind>
    const Kind* as() const
    {
        return std::get_if<Kind>(&shown.element);
    }
};

/// Calls `visit` with every mounted view, in reading order.
template <typename Visit>
void forEachMounted(const Mounted& mounted, const Visit& visit)
{
    visit(mounted);
    for (const auto& child : mounted.children) {
        forEachMounted(*child, visit);
    }
}

} // namespace corvellane::view
