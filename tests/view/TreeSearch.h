#pragma once

#include "view/View.h"

#include <string>
#include <vector>

namespace corvellane::view {

/// The views of a kind, with everything around the element, in reading order.
template <typename Kind>
std::vector<View> viewsOf(const View& view)
{
    std::vector<View> found;
    if (std::holds_alternative<Kind>(view.element)) {
        found.push_back(view);
    }
    for (const View& child : view.children) {
        const std::vector<View> inside = viewsOf<Kind>(child);
        found.insert(found.end(), inside.begin(), inside.end());
    }
    return found;
}

/// The elements of a kind, in reading order.
template <typename Kind>
std::vector<Kind> allOf(const View& view)
{
    std::vector<Kind> found;
    for (const View& each : viewsOf<Kind>(view)) {
        found.push_back(std::get<Kind>(each.element));
    }
    return found;
}

/// Presses the last button of that label, as a person would press the one in front.
inline bool press(const View& view, const std::string& label)
{
    const std::vector<Button> buttons = allOf<Button>(view);
    for (auto button = buttons.rbegin(); button != buttons.rend(); ++button) {
        if (button->label == label && button->enabled) {
            button->action();
            return true;
        }
    }
    return false;
}

} // namespace corvellane::view
