#pragma once

#include "view/View.h"
#include "view/qt/FocusKeeper.h"
#include "view/qt/Reconciler.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace corvellane::view {

class Resources;

/// A window that shows a tree of views. The light scheme, whatever the desktop's is. The minimum of the tree's own
/// frame is the window's least size.
class ViewHost : public QWidget {
public:
    /// `body` makes the tree anew, from the state as it is then. The resources outlive the window.
    ViewHost(std::function<View()> body, const Resources& resources);
    ~ViewHost() override;

    /// Has the tree made and shown when the event loop is next reached, once for any number of calls.
    void scheduleRedraw();

    /// Shows the tree as it is now.
    void redraw();

    /// Gives every window of the program the light scheme. Called once, after the QApplication was made.
    static void prepareApplication();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    void setLeastSize();

    std::function<View()> body_;
    Reconciler reconciler_;
    FocusKeeper focus_{*this};
    std::unique_ptr<Mounted> root_;
    bool scheduled_ = false;
};

} // namespace corvellane::view
