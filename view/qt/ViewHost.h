#pragma once

#include "view/View.h"
#include "view/qt/FocusKeeper.h"
#include "view/qt/HeldKeys.h"
#include "view/qt/Mounted.h"
#include "view/qt/Wait.h"
#include "view/qt/Widgets.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace corvellane::view {

/// A window that shows a tree of views. The light scheme, whatever the desktop's is. The minimum of the tree's own
/// frame is the window's least size.
class ViewHost : public QWidget {
public:
    /// `body` makes the tree anew, from the state as it is then.
    ViewHost(std::function<View()> body, Images images);
    ~ViewHost() override;

    /// Has the tree made and shown when the event loop is next reached, once for any number of calls.
    void scheduleRedraw();

    /// Shows the tree as it is now; during a wait, once that has ended.
    void redraw();

    /// Makes all widgets anew, as a new size of text needs it.
    void rebuild();

    /// The program waits from now on: the window keeps showing what it shows, makes no tree and hears no person.
    void beginWait();

    /// The wait has ended; trees are made again from its outcome on, so that nothing between the two is seen or heard.
    void endWait();

    /// What the wait has led to is in the state: shows it, and hears the person again once it is on the screen.
    void showOutcome();

    /// How the window learns how much of the work that is waited for is done.
    void setPartDone(Wait::PartDone partDone) { wait_.setPartDone(std::move(partDone)); }

    /// Whether what a person does counts.
    bool hears() const { return !wait_.isDeaf(); }

    /// Gives every window of the program the light scheme. Called once, after the QApplication was made.
    static void prepareApplication();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    void setLeastSize();

    std::function<View()> body_;
    HeldKeys heldKeys_;
    Wait wait_;
    Widgets widgets_;
    FocusKeeper focus_{*this};
    std::unique_ptr<Mounted> root_;
    bool scheduled_ = false;
    bool frozen_ = false;
    /// The widgets are to be made anew when the wait has ended.
    bool outdated_ = false;
    /// Since the wait began.
    bool changed_ = false;
};

} // namespace corvellane::view
