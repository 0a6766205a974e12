#pragma once

#include "view/View.h"

#include <QTimer>
#include <QWidget>

namespace corvellane::view {

/// The widget of a timer: never seen, ticks until its action says that it was the last tick, or until it goes.
class TickTimer : public QWidget {
public:
    explicit TickTimer(QWidget* parent);

    void present(const Timer& timer);
    void setAction(const Action<bool()>& action) { action_ = action; }

private:
    Action<bool()> action_;
    QTimer timer_{this};
};

} // namespace corvellane::view
