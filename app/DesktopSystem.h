#pragma once

#include "app/System.h"

namespace corvellane {

class QtApplication;

/// The system's services as a program with a window has them. Needs the QApplication.
struct DesktopSystem : System {
    DesktopSystem();

    /// The application of `System`, unless that is exchanged: it offers its menu to a window.
    std::shared_ptr<QtApplication> desktop;
};

} // namespace corvellane
