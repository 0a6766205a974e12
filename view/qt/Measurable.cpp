#include "view/qt/Measurable.h"

#include "view/Metrics.h"

#include <QWidget>

namespace corvellane::view {

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

} // namespace corvellane::view
