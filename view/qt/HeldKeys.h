#pragma once

#include <QObject>

namespace corvellane::view {

/// Tells a key that is held from one that is pressed again. An X server repeats a key as a release and a press of the
/// same millisecond, which Qt takes for a repetition only when it reads both at once; where they arrive apart, it hands
/// on a press like a new one. That press goes on to its window as the repetition that it is. A filter of the program's
/// events.
class HeldKeys : public QObject {
public:
    HeldKeys();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int released_ = 0;
    quint64 releasedAt_ = 0;
};

} // namespace corvellane::view
