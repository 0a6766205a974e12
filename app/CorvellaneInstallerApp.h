#pragma once

#include "platform/Platform.h"
#include "state/AppSettings.h"
#include "ui/ContentView.h"
#include "view/qt/ViewHost.h"

#include <memory>

namespace corvellane {

/// The program's one scene: the state of the run, filled from the resource folder, and the window that shows it. Needs
/// the QApplication; the platform's services outlive it.
class CorvellaneInstallerApp {
public:
    explicit CorvellaneInstallerApp(const Platform& platform);
    CorvellaneInstallerApp(const CorvellaneInstallerApp&) = delete;
    CorvellaneInstallerApp& operator=(const CorvellaneInstallerApp&) = delete;

    AppSettings& settings() { return *settings_; }
    view::ViewHost& window() { return window_; }

private:
    view::View body();

    std::shared_ptr<AppSettings> settings_;
    ContentView contentView_;
    view::ViewHost window_;
};

} // namespace corvellane
