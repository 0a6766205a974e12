#include "view/qt/ScrollBars.h"

#include <algorithm>

namespace corvellane::view {

void seeLastLineAgain(QScrollBar& bar)
{
    QObject::connect(&bar, &QScrollBar::actionTriggered, &bar, [&bar](int action) {
        const int page = std::max(bar.singleStep(), bar.pageStep() - bar.singleStep());
        if (action == QAbstractSlider::SliderPageStepAdd) {
            bar.setSliderPosition(bar.value() + page);
        } else if (action == QAbstractSlider::SliderPageStepSub) {
            bar.setSliderPosition(bar.value() - page);
        }
    });
}

} // namespace corvellane::view
