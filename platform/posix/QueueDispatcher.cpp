#include "platform/posix/QueueDispatcher.h"

#include <atomic>
#include <utility>

namespace corvellane {
namespace {

/// Blocks the thread that waits: there is no window to keep alive.
class BlockingWaitGroup : public WaitGroup {
public:
    void enter() override { ++inside_; }

    void leave() override
    {
        --inside_;
        inside_.notify_all();
    }

    void wait() override
    {
        while (const int inside = inside_) {
            inside_.wait(inside);
        }
    }

private:
    std::atomic<int> inside_ = 0;
};

} // namespace

void QueueDispatcher::submitToBackground(Task task)
{
    {
        const std::lock_guard lock(mutex_);
        ++unfinished_;
    }
    background_.submit([this, task = std::move(task)]() mutable {
        task();
        task = nullptr;
        const std::lock_guard ended(mutex_);
        --unfinished_;
        changed_.notify_all();
    });
}

void QueueDispatcher::submitToMain(Task task)
{
    const std::lock_guard lock(mutex_);
    main_.push_back(std::move(task));
    changed_.notify_all();
}

std::shared_ptr<WaitGroup> QueueDispatcher::makeWaitGroup()
{
    return std::make_shared<BlockingWaitGroup>();
}

void QueueDispatcher::runMainQueue()
{
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [&] { return !main_.empty() || unfinished_ == 0; });
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

} // namespace corvellane
