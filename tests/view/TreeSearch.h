#pragma once

#include "view/View.h"

#include <string>
#include <vector>

namespace corvellane::view {

/// Calls `visit` with every view of the tree, in reading order.
template <typename Visit>
void forEachView(const View& view, const Visit& visit)
{
    visit(view);
    for (const View& child : view.children) {
        forEachView(child, visit);
    }
}

/// The views of a kind, with everything around the element, in reading order.
template <typename Kind>
std::vector<View> viewsOf(const View& view)
{
    std::vector<View> found;
    forEachView(view, [&](const View& each) {
        if (std::holds_alternative<Kind>(each.element)) {
            found.push_back(each);
        }
    });
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

/// What a person could read, buttons in brackets, those that cannot be pressed in round ones.
inline std::vector<std::string> wordsOf(const View& view)
{
    std::vector<std::string> words;
    forEachView(view, [&](const View& each) {
        if (const auto* text = std::get_if<Text>(&each.element)) {
            words.push_back(text->text);
        } else if (const auto* button = std::get_if<Button>(&each.element)) {
            words.push_back(button->enabled ? "[" + button->label + "]" : "(" + button->label + ")");
        }
    });
    return words;
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
