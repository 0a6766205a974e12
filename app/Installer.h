#pragma once

#include "app/CorvellaneInstallerApp.h"
#include "app/System.h"
#include "platform/qt/Translations.h"

namespace corvellane {

class QtApplication;
class QtDispatcher;

/// The system's services as a program with a window has them. Needs the QApplication.
struct DesktopSystem : System {
    DesktopSystem();

    /// The application and the dispatcher of `System`, unless those are exchanged.
    std::shared_ptr<QtApplication> qtApplication;
    std::shared_ptr<QtDispatcher> qtDispatcher;

private:
    // One file a system: DesktopLinux.cpp, DesktopOsascript.cpp.
    void addDesktopOfItsOwn();
};

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
