#pragma once

#include "view/StackLayout.h"

class QWidget;

namespace corvellane::view {

/// A widget that knows which sizes it can take, in device-independent pixels.
class Measurable {
public:
    virtual ~Measurable() = default;
    virtual Extent widthExtent() const = 0;
    /// At a width within its own extent.
    virtual Extent heightExtent(int width) const = 0;
};

/// A widget that is no Measurable takes every size.
Extent widthExtentOf(const QWidget& widget);
Extent heightExtentOf(const QWidget& widget, int width);

} // namespace corvellane::view
