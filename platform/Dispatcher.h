#pragma once

#include <functional>

namespace corvellane {

/// Queues of work. Submitting is allowed from any thread and returns at once; nothing submitted is ever dropped
/// while the program runs.
class Dispatcher {
public:
    using Task = std::function<void()>;

    virtual ~Dispatcher() = default;

    /// Runs `task` on a thread other than the main one.
    virtual void submitToBackground(Task task) = 0;

    /// Runs `task` on the main thread once that has gone back to its event loop, in the order of submission.
    virtual void submitToMain(Task task) = 0;
};

} // namespace corvellane
