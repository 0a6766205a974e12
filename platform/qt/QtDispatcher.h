#pragma once

#include "base/WorkerThread.h"
#include "platform/Dispatcher.h"

#include <QObject>

#include <deque>
#include <mutex>

namespace corvellane {

/// One worker thread is the background, started by the first task for it; the main queue runs on the event loop of
/// the thread that made the dispatcher, one task an event and never one within another, even where a task runs an
/// event loop of its own. At its end it runs what is still in the background queue, and drops what is left for the
/// main thread.
class QtDispatcher : public QObject, public Dispatcher {
public:
    void submitToBackground(Task task) override;
    void submitToMain(Task task) override;

protected:
    bool event(QEvent* event) override;

private:
    void runNextOfMain();

    std::mutex mutex_;
    std::deque<Task> main_;
    bool runningMain_ = false;
    WorkerThread background_;
};

} // namespace corvellane
