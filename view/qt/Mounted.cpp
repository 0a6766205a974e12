#include "view/qt/Mounted.h"

#include <algorithm>
#include <utility>

namespace corvellane::view {
namespace {

bool canStay(const Mounted& mounted, const View& view)
{
    return mounted.shown.element.index() == view.element.index() && mounted.shown.identity == view.identity;
}

/// Puts the children's widgets into the order of the tree: the one in which they are read out, and the last in front.
void restack(const Mounted& mounted)
{
    QObjectList wanted;
    for (const auto& child : mounted.children) {
        if (child->standing.widget != nullptr && child->standing.takesRoom) {
            wanted.append(child->standing.widget);
        }
    }
    QObjectList standing = mounted.standing.widget->children();
    standing.removeIf([&](QObject* object) { return !wanted.contains(object); });
    if (standing != wanted) {
        for (QObject* const object : wanted) {
            static_cast<QWidget*>(object)->raise();
        }
    }
}

void arrange(const Mounted& mounted)
{
    if (mounted.standing.panel == nullptr) {
        return;
    }
    std::vector<Slot> slotsOfChildren;
    for (const auto& child : mounted.children) {
        if (child->standing.takesRoom) {
            slotsOfChildren.push_back(child->slot());
        }
    }
    restack(mounted);
    mounted.standing.panel->arrange(std::move(slotsOfChildren));
}

/// The view without its children, which are given back.
std::vector<View> takeChildren(View& view)
{
    return std::exchange(view.children, {});
}

std::unique_ptr<Mounted> mount(View view, QWidget* parent, const Widgets& widgets)
{
    auto mounted = std::make_unique<Mounted>();
    mounted->standing = widgets.present(view, {}, parent);
    for (View& child : takeChildren(view)) {
        bring(mounted->children.emplace_back(), std::move(child), mounted->standing.widget, widgets);
    }
    mounted->shown = std::move(view);
    arrange(*mounted);
    if (mounted->standing.widget != nullptr) {
        mounted->standing.widget->setVisible(true);
    }
    return mounted;
}

Change bringChildren(Mounted& mounted, std::vector<View> children, const Widgets& widgets)
{
    Change most = mounted.children.size() > children.size() ? Change::room : Change::none;
    std::for_each(
        mounted.children.begin() + static_cast<std::ptrdiff_t>(std::min(mounted.children.size(), children.size())),
        mounted.children.end(), [](const auto& child) { retire(*child); });
    mounted.children.resize(children.size());
    for (std::size_t index = 0; index < children.size(); ++index) {
        most = std::max(
            most, bring(mounted.children[index], std::move(children[index]), mounted.standing.widget, widgets));
    }
    return most;
}

/// Where only a view's contents differ its widget is told; where it stands is its parent's matter.
Change change(Mounted& mounted, View view, const Widgets& widgets)
{
    if (mounted.shown == view) {
        return Change::none;
    }
    widgets.present(view, mounted.standing, nullptr);
    const View before = std::exchange(mounted.shown, std::move(view));
    const bool asksForTheSame = before.frame == mounted.shown.frame && before.padding == mounted.shown.padding
        && before.priority == mounted.shown.priority;
    const bool hasOwnSize = mounted.standing.widget == nullptr || mounted.standing.sizes != nullptr;
    return asksForTheSame && !hasOwnSize ? Change::looks : Change::room;
}

} // namespace

Slot Mounted::slot() const
{
    const auto* const gap = as<Gap>();
    return {standing, gap != nullptr ? *gap : Gap{0, 0}, shown.frame, shown.padding, shown.priority};
}

Change bring(std::unique_ptr<Mounted>& mounted, View view, QWidget* parent, const Widgets& widgets)
{
    if (mounted == nullptr || !canStay(*mounted, view)) {
        if (mounted != nullptr) {
            retire(*mounted);
        }
        mounted = mount(std::move(view), parent, widgets);
        return Change::room;
    }
    std::vector<View> children = takeChildren(view);
    const Change own = change(*mounted, std::move(view), widgets);
    const Change most = std::max(own, bringChildren(*mounted, std::move(children), widgets));
    if (most == Change::room) {
        arrange(*mounted);
    }
    return most;
}

void retire(const Mounted& mounted)
{
    if (mounted.standing.widget != nullptr) {
        mounted.standing.widget->hide();
        mounted.standing.widget->deleteLater();
    }
}

} // namespace corvellane::view
