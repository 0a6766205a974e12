#pragma once

#include "base/WorkerThread.h"
#include "platform/Dispatcher.h"

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace corvellane {

/// One worker thread is the background, started by the first task for it; the main queue runs on the event loop of
/// the thread that made the dispatcher, one task an event and never one within another, even where a task runs an
/// event loop of its own. At its end it runs what is still in the background queue, and drops what is left for the
/// main thread.
///
/// While the main thread waits, its event loop goes on without the main queue: windows are painted and the desktop is
/// answered.
class QtDispatcher : public QObject, public Dispatcher {
public:
    /// The turns of a wait, in their order. Called on the main thread; none within a task of the main queue but
    /// `begins` and `ends`.
    struct WaitObserver {
        std::function<void()> begins;
        /// The one who waited goes on.
        std::function<void()> ends;
        /// All that the background work has led to is done: nothing of it runs, and nothing is left in the main queue.
        std::function<void()> isSettled;
    };

    void observeWaits(WaitObserver observer) { observer_ = std::move(observer); }

    void submitToBackground(Task task) override;
    void submitToMain(Task task) override;
    std::shared_ptr<WaitGroup> makeWaitGroup() override;

protected:
    bool event(QEvent* event) override;

private:
    class Group;

    void waitFor(const Group& group);
    void runNextOfMain();
    void settle();
    void callMain();

    WaitObserver observer_{[] { }, [] { }, [] { }};
    std::mutex mutex_;
    std::deque<Task> main_;
    /// Tasks of the background that have not ended.
    int unfinished_ = 0;
    bool runningMain_ = false;
    bool waiting_ = false;
    /// A wait has begun, and what it led to is not settled.
    bool unsettled_ = false;
    WorkerThread background_;
};

} // namespace corvellane
