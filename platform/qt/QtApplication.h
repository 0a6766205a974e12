#pragma once

#include "platform/Application.h"

#include <functional>
#include <memory>

class QWidget;

namespace corvellane {

class QtMenu;

/// The one QApplication, which exists whenever this is used.
class QtApplication : public Application {
public:
    QtApplication();

    void terminate() override;

    /// An application menu, "File", "Edit", "View" and "Window"; those in the middle have nothing in them.
    Menu* mainMenu() override;

    /// Makes the main menu, as it stands at that moment, reachable from the window: as the desktop's global menu bar
    /// where there is one, and otherwise as a menu that F10 or the menu key opens at the window's top left. The window
    /// gives no room to it. While `hears` gives false its commands do nothing.
    void offerMainMenu(QWidget& window, std::function<bool()> hears);

private:
    std::shared_ptr<QtMenu> menu_;
};

} // namespace corvellane
