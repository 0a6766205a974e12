#pragma once

namespace corvellane {

/// The running program as the platform sees it. Main thread.
class Application {
public:
    virtual ~Application() = default;

    /// Asks the program to end, without confirmation; the request returns and the event loop ends afterwards.
    virtual void terminate() = 0;
};

} // namespace corvellane
