#pragma once

#include "platform/Dispatcher.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace corvellane {

/// A dispatcher for programs without an event loop: one worker thread is the background, and the main queue is run
/// by whoever calls `runMainQueue`.
class QueueDispatcher : public Dispatcher {
public:
    QueueDispatcher() = default;
    /// Runs what is still in the background queue, then ends the worker; drops what is left for the main thread.
    ~QueueDispatcher() override;

    void submitToBackground(Task task) override;
    void submitToMain(Task task) override;

    /// Runs the main queue's tasks, and waits for those that the background still submits, until no work is left.
    void runMainQueue();

private:
    void work();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Task> background_;
    std::deque<Task> main_;
    bool working_ = false;
    bool ending_ = false;
    std::thread worker_{[this] { work(); }};
};

} // namespace corvellane
