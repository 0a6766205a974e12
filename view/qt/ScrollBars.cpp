#include "view/qt/ScrollBars.h"

#include <algorithm>

namespace corvellane::view {
namespace {

constexpr auto plain = R"(
    QScrollBar { background: #f6f6f6; }
    QScrollBar:vertical { width: 14px; }
    QScrollBar:horizontal { height: 14px; }
    QScrollBar::handle { background: #b8b8bc; border-radius: 4px; margin: 3px; min-width: 24px; min-height: 24px; }
    QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
    QScrollBar::add-page, QScrollBar::sub-page { background: none; })";

} // namespace

void makePlain(QScrollBar& bar)
{
    bar.setStyleSheet(QString::fromLatin1(plain));
}

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
