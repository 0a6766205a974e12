#pragma once

#include "view/View.h"
#include "view/qt/Widgets.h"

#include <memory>
#include <vector>

namespace corvellane::view {

/// What stands on the screen for one view of the tree.
struct Mounted {
    /// What it shows, without the children.
    View shown;
    /// Its widget belongs to the parent's.
    Standing standing;
    std::vector<std::unique_ptr<Mounted>> children;

    template <typename Kind>
    const Kind* as() const
    {
        return std::get_if<Kind>(&shown.element);
    }

    /// Where it stands in its parent's layout.
    Slot slot() const;
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

/// What a redraw has changed: nothing, what is seen within the same room, or also how the room is shared out.
enum class Change { none, looks, room };

/// Brings what is mounted to what `view` shows. A view stays the same
/// where the one at its place before was of the same kind and identity: its widget then keeps focus, selection and
/// scroll position. An empty pointer is filled.
Change bring(std::unique_ptr<Mounted>& mounted, View view, QWidget* parent, const Widgets& widgets);

/// Takes what is mounted from the screen. The widgets outlive the click that may have led here.
void retire(const Mounted& mounted);

} // namespace corvellane::view
