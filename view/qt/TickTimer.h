#pragma once

#include "view/View.h"

#include <QHideEvent>
#include <QShowEvent>
#include <QTimer>
#include <QWidget>

#include <chrono>

namespace corvellane::view {

/// The widget of a timer: draws nothing and takes no room. Ticks while it is shown, until its action says that it was
/// the last tick; a tick that falls due while `deaf` is left out.
class TickTimer : public QWidget {
public:
    TickTimer(QWidget* parent, const bool& deaf)
        : QWidget(parent)
        , deaf_(deaf)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedSize(0, 0);
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, [this] { tick(); });
    }

    void present(const Timer& timer)
    {
        tick_ = timer.tick;
        timer_.setInterval(
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::duration<double>(timer.seconds)));
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        if (!event->spontaneous()) {
            timer_.start();
        }
    }

    void hideEvent(QHideEvent* event) override
    {
        if (!event->spontaneous()) {
            timer_.stop();
        }
    }

private:
    void tick()
    {
        const Action<bool()> tick = tick_;
        if (!deaf_ && !tick()) {
            timer_.stop();
        }
    }

    const bool& deaf_;
    Action<bool()> tick_;
    QTimer timer_;
};

} // namespace corvellane::view
