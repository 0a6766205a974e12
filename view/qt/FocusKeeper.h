#pragma once

#include "view/qt/Accessibility.h"
#include "view/qt/Mounted.h"

#include <QPointer>

#include <optional>

namespace corvellane::view {

/// Sees to the keyboard focus: the Tab key follows the reading order; while an alert is shown nothing behind it can be
/// used, the alert has the focus, and the focus goes back afterwards, to the first view that can be used where the one
/// that had it cannot; texts that are new are announced as they ask for it.
class FocusKeeper {
public:
    explicit FocusKeeper(QWidget& window)
        : window_(window)
        , announcer_(window)
    {
    }

    /// Called before a redraw.
    void remember();

    /// Called after a redraw that changed something.
    void settle(const Mounted& root);

    /// Where the focus is, and where it goes back to after the alert, as numbers of views in reading order; -1 where
    /// it is on none.
    struct Places {
        int focus;
        int behindAlert;
    };

    /// Called before all widgets of a tree are made anew.
    Places placesIn(const Mounted& root) const;

    /// Puts the focus there in the new widgets of the same tree.
    void restore(const Places& places, const Mounted& root);

private:
    void setTabOrder(const Mounted& root) const;
    void settleAlert(const Mounted& root, const Mounted* modal);
    void speak(const QString& words);
    void giveBack(const Mounted& root);

    QWidget& window_;
    QPointer<QWidget> before_;
    QPointer<QWidget> behindAlert_;
    QPointer<QWidget> alert_;
    QPointer<QWidget> textToRead_;
    Announcer announcer_;
    /// As of the last time; absent before the first.
    std::optional<QString> spoken_;
};

} // namespace corvellane::view
