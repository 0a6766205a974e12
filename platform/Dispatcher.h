#pragma once

#include <functional>
#include <memory>

namespace corvellane {

/// Work that the main thread waits for: whoever starts a piece of it enters, and it leaves when it has ended.
class WaitGroup {
public:
    virtual ~WaitGroup() = default;

    /// One more piece of work. Any thread.
    virtual void enter() = 0;

    /// One piece of work has ended; as many leave as have entered. Any thread.
    virtual void leave() = 0;

    /// Returns once all who have entered have left, however long that takes, at once where nobody is inside. Main
    /// thread. Meanwhile no task of the main queue runs, no timer of the window ticks, no control acts and no tree is
    /// built anew; what the person does is dropped until the outcome is on the screen.
    virtual void wait() = 0;
};

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

    /// A group that nobody is in. Main thread.
    virtual std::shared_ptr<WaitGroup> makeWaitGroup() = 0;
};

} // namespace corvellane
