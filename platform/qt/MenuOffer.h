#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace corvellane {

class QtMenu;

/// A window's way to the main menu, whose commands do nothing while `hears` gives false; owned by the window. The menu
/// outlives it.
class MenuOffer : public QObject {
public:
    MenuOffer(const QtMenu& menu, QWidget& window, std::function<bool()> hears);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void exportToDesktop();
    void popUp();

    const QtMenu& menu_;
    QWidget& window_;
    std::function<bool()> hears_;
    bool exported_ = false;
};

} // namespace corvellane
