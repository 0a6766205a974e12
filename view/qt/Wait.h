#pragma once

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace corvellane::view {

/// Keeps out what a person does while the program waits: presses of keys and buttons, touches, the wheel, drops and
/// requests to close are dropped, never kept for later. What ends a gesture (a release) passes, so that held keys and
/// buttons are known as they are. When the session ends meanwhile, the program ends afterwards. One for the program.
class InputGate : public QObject {
public:
    void shut();

    /// Lets everything through again. Where `sceneChanged`, whoever was still pressing meant what was there before:
    /// presses go on being dropped until there has been a pause as long as between two clicks that are no double click.
    void open(bool sceneChanged);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isDropped() const;
    void leave();

    bool shut_ = false;
    bool listening_ = false;
    bool endsAfterwards_ = false;
    /// Since the last press that was dropped.
    QElapsedTimer dropped_;
};

/// A thin bar at the lower edge of a window that shows how much of the work is done, and that the program is alive.
/// For assistive technology a progress bar with a name.
class BusyBar : public QProgressBar {
public:
    explicit BusyBar(QWidget& window);

    /// `part` is between 0 and 1; the bar moves a little with every call.
    void showPart(double part);

    /// Puts it where it belongs in the window, whose size is another now.
    void place();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QElapsedTimer alive_;
};

/// What a window shows and hears while the program waits: the wait cursor and the busy bar, once the wait is longer
/// than a moment, and nothing of what a person does.
class Wait {
public:
    /// The part of the work that is done; absent where nobody can tell, and then there is no bar.
    using PartDone = std::function<std::optional<double>()>;

    explicit Wait(QWidget& window);
    ~Wait();
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    void setPartDone(PartDone partDone) { partDone_ = std::move(partDone); }

    /// True from the beginning of a wait until its outcome is on the screen.
    const bool& isDeaf() const { return deaf_; }

    void begin();
    void end(bool sceneChanged);

    /// The window has another size.
    void place();

private:
    void showLife();

    QWidget& window_;
    InputGate gate_;
    PartDone partDone_;
    /// Null where none is shown.
    std::unique_ptr<BusyBar> bar_;
    QTimer beat_;
    bool deaf_ = false;
    bool hasCursor_ = false;
};

} // namespace corvellane::view
