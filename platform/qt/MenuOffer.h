#pragma once

#include <QObject>

class QWidget;

namespace corvellane {

class QtMenu;

/// A window's way to the main menu; owned by the window. The menu outlives it.
class MenuOffer : public QObject {
public:
    MenuOffer(const QtMenu& menu, QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void exportToDesktop();
    void popUp();

    const QtMenu& menu_;
    QWidget& window_;
    bool exported_ = false;
};

} // namespace corvellane
