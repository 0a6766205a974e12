#include "view/qt/Layout.h"

#include <QWidget>
#include <QWidgetItem>

#include <algorithm>

namespace corvellane::view {
namespace {

Extent framed(Extent content, std::optional<int> minimum, std::optional<int> maximum)
{
    const int least = std::max(content.minimum, minimum.value_or(0));
    return {least, std::max(least, maximum.value_or(content.maximum))};
}

Extent padded(Extent extent, int padding)
{
    return {sumOf(extent.minimum, padding), sumOf(extent.maximum, padding)};
}

int placed(int begin, int available, int length, Placement placement)
{
    return placement == Placement::leading ? begin : begin + (available - length) / 2;
}

} // namespace

Extent widthExtentOf(const QWidget& widget)
{
    const auto* measurable = dynamic_cast<const Measurable*>(&widget);
    return measurable ? measurable->widthExtent() : Extent{0, unbounded};
}

Extent heightExtentOf(const QWidget& widget, int width)
{
    const auto* measurable = dynamic_cast<const Measurable*>(&widget);
    return measurable ? measurable->heightExtent(width) : Extent{0, unbounded};
}

Extent Slot::widthExtent() const
{
    if (widget == nullptr) {
        return {};
    }
    return padded(framed(widthExtentOf(*widget), frame.minimumWidth, frame.maximumWidth), padding.left + padding.right);
}

Extent Slot::heightExtent(int width) const
{
    if (widget == nullptr) {
        return {};
    }
    const Extent content = heightExtentOf(*widget, innerWidth(width));
    return padded(framed(content, frame.minimumHeight, frame.maximumHeight), padding.top + padding.bottom);
}

int Slot::innerWidth(int width) const
{
    return fitted(width, widthExtent()) - padding.left - padding.right;
}

void Slot::place(const QRect& cell, Placement horizontally, Placement vertically) const
{
    if (widget == nullptr) {
        return;
    }
    const int width = fitted(cell.width(), widthExtent());
    const int height = fitted(cell.height(), heightExtent(width));
    const QRect outer(placed(cell.left(), cell.width(), width, horizontally),
        placed(cell.top(), cell.height(), height, vertically), width, height);
    widget->setGeometry(outer.adjusted(padding.left, padding.top, -padding.right, -padding.bottom));
}

ViewLayout::ViewLayout(QWidget* parent)
    : QLayout(parent)
{
    setSizeConstraint(QLayout::SetNoConstraint);
    setContentsMargins(0, 0, 0, 0);
}

ViewLayout::~ViewLayout() = default;

void ViewLayout::setArrangement(const Arrangement& arrangement)
{
    arrangement_ = arrangement;
    invalidate();
}

void ViewLayout::arrange(std::vector<Slot> slotsOfChildren)
{
    slots_ = std::move(slotsOfChildren);
    items_.clear();
    for (const Slot& slot : slots_) {
        if (slot.widget != nullptr) {
            items_.push_back(std::make_unique<QWidgetItem>(slot.widget));
        }
    }
    invalidate();
}

// Measuring

int ViewLayout::spacingOf(const Stack& stack) const
{
    return slots_.empty() ? 0 : stack.spacing * (static_cast<int>(slots_.size()) - 1);
}

Extent ViewLayout::extentOf(const Slot& slot, Axis axis, int width) const
{
    const bool isAlong = stack() != nullptr && stack()->axis == axis;
    if (slot.widget == nullptr) {
        return isAlong ? Extent{slot.gap.minimum, slot.gap.maximum} : Extent{};
    }
    return axis == Axis::horizontal ? slot.widthExtent() : slot.heightExtent(width);
}

/// `width` is the layout's own, looked at for heights alone.
Extent ViewLayout::extent(Axis axis, int width) const
{
    const bool isAlong = stack() != nullptr && stack()->axis == axis;
    std::vector<int> widths(slots_.size(), width);
    if (axis == Axis::vertical && stack() != nullptr && stack()->axis == Axis::horizontal) {
        widths = lengths(*stack(), QRect(0, 0, width, 0));
    }
    Extent whole;
    if (isAlong) {
        whole = {spacingOf(*stack()), spacingOf(*stack())};
    }
    for (std::size_t index = 0; index < slots_.size(); ++index) {
        const Extent each = extentOf(slots_[index], axis, widths[index]);
        whole.minimum = isAlong ? sumOf(whole.minimum, each.minimum) : std::max(whole.minimum, each.minimum);
        whole.maximum = isAlong ? sumOf(whole.maximum, each.maximum) : std::max(whole.maximum, each.maximum);
    }
    return whole;
}

Extent ViewLayout::widthExtent() const
{
    return extent(Axis::horizontal, 0);
}

Extent ViewLayout::heightExtent(int width) const
{
    return extent(Axis::vertical, width);
}

// Placing

std::vector<int> ViewLayout::lengths(const Stack& stack, const QRect& area) const
{
    std::vector<StackItem> items;
    items.reserve(slots_.size());
    for (const Slot& slot : slots_) {
        items.push_back({extentOf(slot, stack.axis, area.width()), slot.priority});
    }
    const int total = stack.axis == Axis::horizontal ? area.width() : area.height();
    return distribute(total - spacingOf(stack), items);
}

void ViewLayout::placeStack(const Stack& stack, const QRect& area) const
{
    const std::vector<int> lengthsOfSlots = lengths(stack, area);
    int position = 0;
    for (std::size_t index = 0; index < slots_.size(); ++index) {
        const int length = lengthsOfSlots[index];
        if (stack.axis == Axis::horizontal) {
            const QRect cell(area.left() + position, area.top(), length, area.height());
            slots_[index].place(cell, Placement::leading, stack.across);
        } else {
            const QRect cell(area.left(), area.top() + position, area.width(), length);
            slots_[index].place(cell, stack.across, Placement::leading);
        }
        position += length + stack.spacing;
    }
}

void ViewLayout::setGeometry(const QRect& area)
{
    if (valid_ && area == geometry()) {
        return;
    }
    QLayout::setGeometry(area);
    valid_ = true;
    if (stack() != nullptr) {
        placeStack(*stack(), area);
    } else {
        const Placement placement = std::get<Layers>(arrangement_).children;
        std::ranges::for_each(slots_, [&](const Slot& slot) { slot.place(area, placement, placement); });
    }
    layOut();
}

void ViewLayout::layOut()
{
    for (const Slot& slot : slots_) {
        if (slot.widget != nullptr && slot.widget->layout() != nullptr) {
            slot.widget->layout()->setGeometry(slot.widget->contentsRect());
        }
    }
}

void ViewLayout::invalidate()
{
    valid_ = false;
    QLayout::invalidate();
}

// What QLayout wants to know

void ViewLayout::addItem(QLayoutItem* item)
{
    items_.emplace_back(item);
}

int ViewLayout::count() const
{
    return static_cast<int>(items_.size());
}

QLayoutItem* ViewLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* ViewLayout::takeAt(int index)
{
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    QLayoutItem* const item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
}

QSize ViewLayout::sizeHint() const
{
    return minimumSize();
}

QSize ViewLayout::minimumSize() const
{
    const int width = widthExtent().minimum;
    return {width, heightExtent(width).minimum};
}

} // namespace corvellane::view
