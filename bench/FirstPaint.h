#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace corvellane {

/// Ends the program when a window has been painted for the first time.
class EndAtFirstPaint : public QObject {
public:
    explicit EndAtFirstPaint(QWidget& window) { window.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
        }
        return false;
    }
};

} // namespace corvellane
