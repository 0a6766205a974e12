#include "view/qt/Reconciler.h"

#include "view/qt/Panel.h"
#include "view/qt/ViewLayout.h"

#include <QTimer>

#include <utility>

namespace corvellane::view {
namespace {

View resolved(View view)
{
    while (const auto* environment = std::get_if<Environment>(&view.element)) {
        const Environment present = *environment;
        view = present.content.run(*present.settings);
    }
    return view;
}

bool canStay(const Mounted& mounted, const View& view)
{
    return mounted.shown.element.index() == view.element.index() && mounted.shown.identity == view.identity;
}

bool takesRoom(const Mounted& mounted)
{
    return mounted.as<Nothing>() == nullptr && mounted.as<Timer>() == nullptr;
}

/// Puts the children's widgets into the order of the tree: the one in which they are read out, and the last in front.
void restack(const Mounted& mounted)
{
    QObjectList wanted;
    for (const auto& child : mounted.children) {
        if (child->widget != nullptr && takesRoom(*child)) {
            wanted.append(child->widget);
        }
    }
    QObjectList standing = mounted.widget->children();
    standing.removeIf([&](QObject* object) { return !wanted.contains(object); });
    if (standing != wanted) {
        for (QObject* const object : wanted) {
            static_cast<QWidget*>(object)->raise();
        }
    }
}

} // namespace

bool Reconciler::update(std::unique_ptr<Mounted>& mounted, View view, QWidget* parent)
{
    view = resolved(std::move(view));
    if (mounted != nullptr && canStay(*mounted, view)) {
        std::vector<View> children = std::move(view.children);
        view.children.clear();
        const bool changed = change(*mounted, view);
        return updateChildren(*mounted, std::move(children)) || changed;
    }
    if (mounted != nullptr) {
        retire(*mounted);
    }
    mounted = mount(std::move(view), parent);
    return true;
}

std::unique_ptr<Mounted> Reconciler::mount(View view, QWidget* parent)
{
    auto mounted = std::make_unique<Mounted>();
    std::vector<View> children = std::move(view.children);
    view.children.clear();
    mounted->widget = widgets_.make(view.element, parent);
    if (auto* const panel = dynamic_cast<Panel*>(mounted->widget)) {
        panel->showBackdrop(view.backdrop);
    }
    mounted->shown = std::move(view);
    for (View& child : children) {
        update(mounted->children.emplace_back(), std::move(child), mounted->widget);
    }
    arrange(*mounted);
    if (mounted->widget != nullptr && mounted->as<Timer>() == nullptr) {
        mounted->widget->setVisible(true);
    }
    return mounted;
}

bool Reconciler::change(Mounted& mounted, View& view)
{
    const bool differs = mounted.shown != view;
    if (mounted.widget != nullptr) {
        if (mounted.shown.element != view.element) {
            widgets_.change(*mounted.widget, view.element);
        }
        if (mounted.shown.backdrop != view.backdrop) {
            if (auto* const panel = dynamic_cast<Panel*>(mounted.widget)) {
                panel->showBackdrop(view.backdrop);
            }
        }
        Widgets::follow(*mounted.widget, view.element);
    }
    mounted.shown = std::move(view);
    return differs;
}

bool Reconciler::updateChildren(Mounted& mounted, std::vector<View> children)
{
    bool changed = false;
    while (mounted.children.size() > children.size()) {
        retire(*mounted.children.back());
        mounted.children.pop_back();
        changed = true;
    }
    mounted.children.resize(children.size());
    for (std::size_t index = 0; index < children.size(); ++index) {
        changed = update(mounted.children[index], std::move(children[index]), mounted.widget) || changed;
    }
    if (changed) {
        arrange(mounted);
    }
    return changed;
}

Slot Reconciler::slotOf(const Mounted& mounted)
{
    const View& view = mounted.shown;
    const auto* const gap = mounted.as<Gap>();
    return {mounted.widget, gap ? *gap : Gap{0, 0}, view.frame, view.padding, view.priority};
}

void Reconciler::arrange(Mounted& mounted)
{
    auto* const panel = dynamic_cast<Panel*>(mounted.widget);
    if (panel == nullptr) {
        return;
    }
    std::vector<Slot> slotsOfChildren;
    for (const auto& child : mounted.children) {
        if (!takesRoom(*child)) {
            continue;
        }
        slotsOfChildren.push_back(slotOf(*child));
    }
    restack(mounted);
    if (const auto* stack = mounted.as<Stack>()) {
        panel->viewLayout().arrange(*stack, std::move(slotsOfChildren));
    } else if (const auto* layers = mounted.as<Layers>()) {
        panel->viewLayout().arrange(*layers, std::move(slotsOfChildren));
    }
}

/// The widget outlives the click that may have led here.
void Reconciler::retire(Mounted& mounted)
{
    if (mounted.widget == nullptr) {
        return;
    }
    for (QTimer* const timer : mounted.widget->findChildren<QTimer*>()) {
        timer->stop();
    }
    mounted.widget->hide();
    mounted.widget->deleteLater();
}

} // namespace corvellane::view
