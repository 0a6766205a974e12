#include "view/qt/HeldKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace corvellane::view {

HeldKeys::HeldKeys()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWindowType() || (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)) {
        return false;
    }
    auto& key = static_cast<QKeyEvent&>(*event);
    if (event->type() == QEvent::KeyRelease) {
        released_ = key.key();
        releasedAt_ = key.timestamp();
        return false;
    }
    const bool isSameMoment = key.timestamp() != 0 && key.timestamp() == releasedAt_;
    if (key.isAutoRepeat() || !isSameMoment || key.key() != released_) {
        return false;
    }
    QKeyEvent repetition(QEvent::KeyPress, key.key(), key.modifiers(), key.nativeScanCode(), key.nativeVirtualKey(),
        key.nativeModifiers(), key.text(), true, static_cast<quint16>(key.count()), key.device());
    repetition.setTimestamp(key.timestamp());
    QCoreApplication::sendEvent(watched, &repetition);
    event->setAccepted(repetition.isAccepted());
    return true;
}

} // namespace corvellane::view
