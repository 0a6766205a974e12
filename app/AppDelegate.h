#pragma once

namespace corvellane {

class Application;

/// What the program does when the platform tells it about a turn of its life. Main thread.
class AppDelegate {
public:
    /// Called once, when the window has been made: takes "File", "Edit" and "View" out of the main menu.
    static void applicationDidFinishLaunching(Application& application);

    static bool applicationShouldTerminateAfterLastWindowClosed(const Application& application);
};

} // namespace corvellane
