#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <cstdlib>

namespace corvellane {

/// Ends the program when a widget has been painted for the first time: at once, without taking anything down; or as
/// programs end, where it was started with "--to-end".
class EndAtFirstPaint : public QObject {
public:
    EndAtFirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, [] {
                if (!QCoreApplication::arguments().contains(QStringLiteral("--to-end"))) {
                    std::_Exit(0);
                }
                QCoreApplication::quit();
            });
        }
        return false;
    }
};

} // namespace corvellane
