#pragma once

#include <QObject>
#include <QString>

class QAbstractItemView;
class QWidget;

namespace corvellane::view {

/// Tells assistive technology what the host's own widgets are: the window, the log and the alerts. Called once, after
/// the QApplication was made.
void installAccessibility();

/// What assistive technology calls the widget, and what else it says of it; it is told only of what differs.
void nameForAssistance(QWidget& widget, const QString& name);
void describeForAssistance(QWidget& widget, const QString& description);

/// The row's tick differs from what it was.
void tellTick(QAbstractItemView& list, int row);

/// The row is the one that the keys act on.
void tellFocus(QAbstractItemView& list, int row);

/// The characters from `begin` to `end` of the text are selected now, or none where the two are the same.
void tellSelection(QWidget& text, int begin, int end);

/// Says words to those who do not see the window, and leaves the keyboard focus where it is. To assistive technology a
/// notification that shows up in the window; every version of Qt can tell of those.
class Announcer : public QObject {
public:
    explicit Announcer(QWidget& window);

    void say(const QString& words);

    QWidget& window() const { return window_; }
    const QString& words() const { return words_; }

private:
    QWidget& window_;
    QString words_;
};

} // namespace corvellane::view
