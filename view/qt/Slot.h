#pragma once

#include "view/View.h"
#include "view/qt/Measurable.h"

#include <QRect>

class QWidget;

namespace corvellane::view {

/// A child's place in its parent's layout: its widget, or the gap it stands for, with frame and padding around it.
struct Slot {
    /// Absent for a gap.
    QWidget* widget = nullptr;
    Gap gap;
    Frame frame;
    Padding padding;
    double priority = 0;

    bool operator==(const Slot&) const = default;

    /// With the padding.
    Extent widthExtent() const;
    Extent heightExtent(int width) const;

    /// Gives the widget its share of `cell`, without the padding; what it cannot fill is left at the sides.
    void place(const QRect& cell, Placement horizontally, Placement vertically) const;

private:
    int innerWidth(int width) const;
};

} // namespace corvellane::view
