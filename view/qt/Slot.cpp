#include "view/qt/Slot.h"

#include <QWidget>

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

} // namespace corvellane::view
