#pragma once

#include "base/WorkerThread.h"
#include "platform/Dispatcher.h"

#include <condition_variable>
#include <deque>
#include <mutex>

namespace corvellane {

/// A dispatcher for programs without an event loop: one worker thread is the background, and the main queue is run
/// by whoever calls `runMainQueue`. At its end it runs what is still in the background queue, and drops what is left
/// for the main thread.
class QueueDispatcher : public Dispatcher {
public:
    void submitToBackground(Task task) override;
    void submitToMain(Task task) override;
    std::shared_ptr<WaitGroup> makeWaitGroup() override;

    /// Runs the main queue's tasks, and waits for those that the background still submits, until no work is left.
    void runMainQueue();

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Task> main_;
    /// Tasks of the background that have not ended.
    int unfinished_ = 0;
    WorkerThread background_;
};

} // namespace corvellane
