#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace corvellane {

/// One thread that runs tasks in the order of their submission, started by the first of them.
class WorkerThread {
public:
    using Task = std::function<void()>;

    WorkerThread() = default;
    WorkerThread(const WorkerThread&) = delete;
    WorkerThread& operator=(const WorkerThread&) = delete;
    /// Runs what is still waiting, then ends the thread.
    ~WorkerThread();

    /// Returns at once; allowed from any thread. When the system has no thread to give, the task runs before this
    /// returns: hold no lock that it takes.
    void submit(Task task);

private:
    bool start();
    void work();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Task> waiting_;
    bool ending_ = false;
    std::thread thread_;
};

} // namespace corvellane
