#pragma once

#include "platform/Dispatcher.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace corvellane {

/// One worker thread is the background, started by the first task for it; the main queue runs on the event loop of
/// the thread that made the dispatcher, one task an event and never one within another, even where a task runs an
/// event loop of its own.
class QtDispatcher : public QObject, public Dispatcher {
public:
    QtDispatcher() = default;
    QtDispatcher(const QtDispatcher&) = delete;
    QtDispatcher& operator=(const QtDispatcher&) = delete;
    /// Runs what is still in the background queue, then ends the worker; drops what is left for the main thread.
    ~QtDispatcher() override;

    void submitToBackground(Task task) override;
    void submitToMain(Task task) override;

protected:
    bool event(QEvent* event) override;

private:
    void work();
    void runNextOfMain();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Task> background_;
    std::deque<Task> main_;
    bool runningMain_ = false;
    bool ending_ = false;
    std::thread worker_;
};

} // namespace corvellane
