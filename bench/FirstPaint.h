#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <cstdlib>

namespace corvellane {

/// Ends the program when a widget has been painted for the first time, without taking anything down: at its end, a
/// program that has shown no text reads the configuration of all fonts, which is half of what it does.
class EndAtFirstPaint : public QObject {
public:
    EndAtFirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, [] { std::_Exit(0); });
        }
        return false;
    }
};

} // namespace corvellane
