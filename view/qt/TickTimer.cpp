#include "view/qt/TickTimer.h"

#include <chrono>

namespace corvellane::view {

TickTimer::TickTimer(QWidget* parent)
    : QWidget(parent)
{
    hide();
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, this, [this] {
        const auto tick = action_.run;
        if (!tick || !tick()) {
            timer_.stop();
        }
    });
}

void TickTimer::present(const Timer& timer)
{
    timer_.start(std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::duration<double>(timer.seconds)));
}

} // namespace corvellane::view
