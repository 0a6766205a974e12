#include "base/WorkerThread.h"

#include <utility>

namespace corvellane {

WorkerThread::~WorkerThread()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) {
        thread_.join();
    }
}

void WorkerThread::submit(Task task)
{
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(task));
    if (!thread_.joinable()) {
        thread_ = std::thread([this] { work(); });
    }
    changed_.notify_all();
}

void WorkerThread::work()
{
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [&] { return !waiting_.empty() || ending_; });
        if (waiting_.empty()) {
            return;
        }
        Task task = std::move(waiting_.front());
        waiting_.pop_front();
        lock.unlock();
        task();
        task = nullptr;
        lock.lock();
    }
}

} // namespace corvellane
