#pragma once

namespace corvellane {

class Menu;

/// The running program as the platform sees it. Main thread.
class Application {
public:
    virtual ~Application() = default;

    /// Asks the program to end, without confirmation; the request returns and the event loop ends afterwards.
    virtual void terminate() = 0;

    /// The main menu, which lives as long as the application; null when the platform has none.
    virtual Menu* mainMenu() = 0;
};

} // namespace corvellane
