#pragma once

#include "app/System.h"

namespace corvellane {

class QtApplication;
class QtDispatcher;

/// The system's services as a program with a window has them. Needs the QApplication.
struct DesktopSystem : System {
    DesktopSystem();

    /// The application and the dispatcher of `System`, unless those are exchanged.
    std::shared_ptr<QtApplication> qtApplication;
    std::shared_ptr<QtDispatcher> qtDispatcher;
};

} // namespace corvellane
