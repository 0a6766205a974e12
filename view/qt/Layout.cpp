#include "view/qt/Layout.h"

#include "view/qt/Appearance.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

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

// A child's place

Extent Slot::widthExtent() const
{
    if (standing.widget == nullptr) {
        return {};
    }
    const Extent content = standing.sizes != nullptr ? standing.sizes->widthExtent() : Extent{0, unbounded};
    return padded(framed(content, frame.minimumWidth, frame.maximumWidth), padding.left + padding.right);
}

Extent Slot::heightExtent(int width) const
{
    if (standing.widget == nullptr) {
        return {};
    }
    const Extent content
        = standing.sizes != nullptr ? standing.sizes->heightExtent(innerWidth(width)) : Extent{0, unbounded};
    return padded(framed(content, frame.minimumHeight, frame.maximumHeight), padding.top + padding.bottom);
}

int Slot::innerWidth(int width) const
{
    return fitted(width, widthExtent()) - padding.left - padding.right;
}

void Slot::place(const QRect& cell, Placement horizontally, Placement vertically, const QRect& whole) const
{
    if (standing.widget == nullptr) {
        return;
    }
    const int width = fitted(cell.width(), widthExtent());
    const int height = fitted(cell.height(), heightExtent(width));
    const QRect outer(placed(cell.left(), cell.width(), width, horizontally),
        placed(cell.top(), cell.height(), height, vertically), width, height);
    const QRect inner = outer.adjusted(padding.left, padding.top, -padding.right, -padding.bottom);
    standing.widget->setGeometry(QStyle::visualRect(QGuiApplication::layoutDirection(), whole, inner));
    if (standing.panel != nullptr) {
        standing.panel->layOut();
    }
}

// What a panel shows

void Panel::present(const Arrangement& arrangement, const Backdrop& backdrop, bool modal)
{
    arrangement_ = arrangement;
    showBackdrop(backdrop);
    forgetSizes();
    modal_ = modal;
    setAttribute(Qt::WA_NoMousePropagation, modal);
}

void Panel::showBackdrop(const Backdrop& backdrop)
{
    if (backdrop != backdrop_) {
        backdrop_ = backdrop;
        setAttribute(Qt::WA_OpaquePaintEvent, backdrop.fill && backdrop.cornerRadius == 0);
        const int line = backdrop.border ? 1 : 0;
        setContentsMargins(line, line, line, line);
        update();
    }
}

void Panel::arrange(std::vector<Slot> slotsOfChildren)
{
    slots_ = std::move(slotsOfChildren);
    forgetSizes();
}

void Panel::forgetSizes()
{
    laidOut_ = {};
    widths_.reset();
    heights_.reset();
}

void Panel::paintEvent(QPaintEvent*)
{
    if (!backdrop_.fill && !backdrop_.border) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, backdrop_.cornerRadius > 0);
    painter.setPen(Qt::NoPen);
    if (backdrop_.fill) {
        painter.setBrush(colorOf(*backdrop_.fill));
        painter.drawRoundedRect(rect(), backdrop_.cornerRadius, backdrop_.cornerRadius);
    }
    if (backdrop_.border) {
        painter.setBrush(colorOf(*backdrop_.border));
        painter.drawRects(QList<QRect>{QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1),
            QRect(0, 1, 1, height() - 2), QRect(width() - 1, 1, 1, height() - 2)});
    }
}

// Measuring

Extent Panel::widthExtent() const
{
    if (!widths_) {
        const QMargins line = contentsMargins();
        widths_ = padded(contentExtent(Axis::horizontal, 0), line.left() + line.right());
    }
    return *widths_;
}

Extent Panel::heightExtent(int width) const
{
    if (!heights_ || heights_->width != width) {
        const QMargins line = contentsMargins();
        const Extent content = contentExtent(Axis::vertical, width - line.left() - line.right());
        heights_ = Heights{width, padded(content, line.top() + line.bottom())};
    }
    return heights_->extent;
}

int Panel::spacing() const
{
    return slots_.empty() || stack() == nullptr ? 0 : stack()->spacing * (static_cast<int>(slots_.size()) - 1);
}

Extent Panel::extentOf(const Slot& slot, Axis axis, int width) const
{
    if (slot.standing.widget == nullptr) {
        return isAlong(axis) ? Extent{slot.gap.minimum, slot.gap.maximum} : Extent{};
    }
    return axis == Axis::horizontal ? slot.widthExtent() : slot.heightExtent(width);
}

/// `width` is that of the content, looked at for heights alone.
Extent Panel::contentExtent(Axis axis, int width) const
{
    std::vector<int> widths(slots_.size(), width);
    if (axis == Axis::vertical && isAlong(Axis::horizontal)) {
        widths = lengths(*stack(), QSize(width, 0));
    }
    Extent whole;
    if (isAlong(axis)) {
        whole = {spacing(), spacing()};
    }
    for (std::size_t index = 0; index < slots_.size(); ++index) {
        const Extent each = extentOf(slots_[index], axis, widths[index]);
        whole.minimum = isAlong(axis) ? sumOf(whole.minimum, each.minimum) : std::max(whole.minimum, each.minimum);
        whole.maximum = isAlong(axis) ? sumOf(whole.maximum, each.maximum) : std::max(whole.maximum, each.maximum);
    }
    return whole;
}

std::vector<int> Panel::lengths(const Stack& stack, const QSize& area) const
{
    std::vector<StackItem> items;
    items.reserve(slots_.size());
    for (const Slot& slot : slots_) {
        items.push_back({extentOf(slot, stack.axis, area.width()), slot.priority});
    }
    const int total = stack.axis == Axis::horizontal ? area.width() : area.height();
    return distribute(total - spacing(), items);
}

// Placing

void Panel::layOut()
{
    const QRect area = contentsRect();
    if (area == std::exchange(laidOut_, area)) {
        return;
    }
    if (stack() != nullptr) {
        return placeStack(*stack(), area);
    }
    const Placement placement = std::get<Layers>(arrangement_).children;
    std::ranges::for_each(slots_, [&](const Slot& slot) { slot.place(area, placement, placement, area); });
}

/// The part of a row's cell that a child is in the middle of: the row's first line, or what the child is higher than
/// that. The row as high as it needs to be is in the middle of its area.
QRect Panel::firstLine(const Slot& slot, const QRect& cell, const QRect& area) const
{
    int line = slot.heightExtent(cell.width()).minimum;
    for (const Slot& each : slots_) {
        line = std::max(line, each.heightExtent(unbounded).minimum);
    }
    const int spare = area.height() - contentExtent(Axis::vertical, area.width()).minimum;
    return {cell.left(), cell.top() + spare / 2, cell.width(), line};
}

void Panel::placeStack(const Stack& stack, const QRect& area) const
{
    const std::vector<int> lengthsOfSlots = lengths(stack, area.size());
    int position = 0;
    for (std::size_t index = 0; index < slots_.size(); ++index) {
        const int length = lengthsOfSlots[index];
        if (stack.axis == Axis::horizontal) {
            const QRect cell(area.left() + position, area.top(), length, area.height());
            const bool onFirstLine = stack.across == Placement::firstLine;
            slots_[index].place(onFirstLine ? firstLine(slots_[index], cell, area) : cell, Placement::leading,
                onFirstLine ? Placement::centre : stack.across, area);
        } else {
            const QRect cell(area.left(), area.top() + position, area.width(), length);
            slots_[index].place(cell, stack.across, Placement::leading, area);
        }
        position += length + stack.spacing;
    }
}

} // namespace corvellane::view
