#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

namespace corvellane {

/// Ends the program when a widget has been painted for the first time.
class EndAtFirstPaint : public QObject {
public:
    EndAtFirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
        }
        return false;
    }
};

} // namespace corvellane
