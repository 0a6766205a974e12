#pragma once

#include "view/View.h"

#include <string>
#include <utility>

namespace corvellane::view {

/// A view that holds others.
template <typename... Children>
View holding(Element element, Children&&... children)
{
    View view{std::move(element), {}, {}, {}, {}, 0, {}};
    view.children.reserve(sizeof...(children));
    (view.children.push_back(std::forward<Children>(children)), ...);
    return view;
}

/// Children from left to right, centred vertically.
template <typename... Children>
View row(int spacing, Children&&... children)
{
    return holding(Stack{Axis::horizontal, spacing, Placement::centre}, std::forward<Children>(children)...);
}

/// Children from top to bottom.
template <typename... Children>
View column(int spacing, Placement across, Children&&... children)
{
    return holding(Stack{Axis::vertical, spacing, across}, std::forward<Children>(children)...);
}

inline View nothing()
{
    return holding(Nothing{});
}

/// Stretches.
inline View gap(int minimum = standardGap)
{
    return holding(Gap{minimum, unbounded});
}

/// Does not stretch.
inline View space(int length)
{
    return holding(Gap{length, length});
}

/// A text that is looked up in the table of translated texts.
inline View text(std::string key, Font font = standardFont, Placement lines = Placement::leading)
{
    return holding(Text{std::move(key), true, font, Tint::label, lines, Announcement::none, {}});
}

/// A text that is shown as it stands.
inline View verbatim(std::string shown, Tint tint, Placement lines = Placement::leading)
{
    return holding(Text{std::move(shown), false, standardFont, tint, lines, Announcement::none, {}});
}

/// A symbol image stretched to a square.
inline View symbol(std::string name, Tint tint, int size)
{
    return holding(Symbol{std::move(name), tint, size}).withSize(size, size);
}

/// A push button that performs an operation on something: button<&Lamp::light>("Light", lamp).
template <auto Operation, typename Receiver>
View button(std::string label, Receiver& receiver, bool enabled = true)
{
    return holding(
        Button{std::move(label), Action<void()>::calling<Operation>(receiver), enabled, Button::Style::push, {}});
}

} // namespace corvellane::view
