#include "platform/posix/QueueDispatcher.h"

#include <utility>

namespace corvellane {

QueueDispatcher::~QueueDispatcher()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    worker_.join();
}

void QueueDispatcher::submitToBackground(Task task)
{
    {
        const std::lock_guard lock(mutex_);
        background_.push_back(std::move(task));
    }
    changed_.notify_all();
}

void QueueDispatcher::submitToMain(Task task)
{
    {
        const std::lock_guard lock(mutex_);
        main_.push_back(std::move(task));
    }
    changed_.notify_all();
}

void QueueDispatcher::runMainQueue()
{
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [&] { return !main_.empty() || (background_.empty() && !working_); });
        if (main_.empty()) {
            return;
        }
        const Task task = std::move(main_.front());
        main_.pop_front();
        lock.unlock();
        task();
        lock.lock();
    }
}

void QueueDispatcher::work()
{
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [&] { return !background_.empty() || ending_; });
        if (background_.empty()) {
            return;
        }
        Task task = std::move(background_.front());
        background_.pop_front();
        working_ = true;
        lock.unlock();
        task();
        task = nullptr;
        lock.lock();
        working_ = false;
        changed_.notify_all();
    }
}

} // namespace corvellane
