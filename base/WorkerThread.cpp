#include "base/WorkerThread.h"

#include <system_error>
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
    std::unique_lock lock(mutex_);
    if (!thread_.joinable() && !start()) {
        lock.unlock();
        task();
        return;
    }
    waiting_.push_back(std::move(task));
    changed_.notify_all();
}

bool WorkerThread::start()
{
    try {
        thread_ = std::thread([this] { work(); });
    } catch (const std::system_error&) {
        return false;
    }
    return true;
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
