#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <string>

class QListView;

namespace corvellane {

/// A person in front of the window: reads what it shows, and uses mouse and keyboard through the window system's own
/// events. Labels are keys of the table of translated texts.
class WindowUser {
public:
    explicit WindowUser(QWidget& window)
        : window_(window)
    {
    }

    /// Whether a text, in full, stands somewhere in the window.
    bool reads(const std::string& text) const;

    /// Whether a button of that label can be pressed.
    bool canPress(const std::string& label) const;

    /// Clicks on the middle of a button; false when there is none in sight, or something lies in front of it.
    bool click(const std::string& label) const;

    /// Clicks where the button is, whatever lies in front of it.
    void clickThrough(const std::string& label) const;

    /// Clicks on a row of the list, so many points from the edge where its text begins.
    void clickRow(int row, int x) const;

    void press(Qt::Key key) const;

    /// Lets events pass until `condition` holds; false when it does not within some seconds.
    static bool wait(const std::function<bool()>& condition);

    QListView* list() const;
    QWidget& window() const { return window_; }

private:
    QWidget* button(const std::string& label) const;
    void clickAt(const QPoint& point) const;

    QWidget& window_;
};

} // namespace corvellane
