#pragma once

#include "app/CorvellaneInstallerApp.h"
#include "app/DesktopSystem.h"
#include "platform/qt/Translations.h"

namespace corvellane {

/// The whole program: the scene on a desktop's services, with its menu and its translated texts. Needs the
/// QApplication.
class Installer {
public:
    /// The tables of translated texts lie in the resource folder, or else where it is said.
    explicit Installer(const DesktopSystem& system = {});
    Installer(DesktopSystem system, const std::string& translations);

    /// Shows the window and returns when the program is to end, with the exit status.
    int run();

    AppSettings& settings() { return scene_.settings(); }
    view::ViewHost& window() { return scene_.window(); }

private:
    DesktopSystem system_;
    Translations translations_;
    CorvellaneInstallerApp scene_;
};

} // namespace corvellane
