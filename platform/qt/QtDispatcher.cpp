#include "platform/qt/QtDispatcher.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <atomic>
#include <cassert>
#include <utility>

namespace corvellane {

class QtDispatcher::Group : public WaitGroup {
public:
    explicit Group(QtDispatcher& dispatcher)
        : dispatcher_(dispatcher)
    {
    }

    bool isEmpty() const { return inside_ == 0; }

    void enter() override { ++inside_; }

    void leave() override
    {
        if (--inside_ == 0) {
            QAbstractEventDispatcher::instance(dispatcher_.thread())->wakeUp();
        }
    }

    void wait() override { dispatcher_.waitFor(*this); }

private:
    QtDispatcher& dispatcher_;
    std::atomic<int> inside_ = 0;
};

void QtDispatcher::submitToBackground(Task task)
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
        callMain();
    });
}

void QtDispatcher::submitToMain(Task task)
{
    {
        const std::lock_guard lock(mutex_);
        main_.push_back(std::move(task));
    }
    callMain();
}

std::shared_ptr<WaitGroup> QtDispatcher::makeWaitGroup()
{
    return std::make_shared<Group>(*this);
}

/// The event loop's own quitting would not end this loop: a program that is told to end while it waits ends afterwards.
void QtDispatcher::waitFor(const Group& group)
{
    assert(!waiting_);
    waiting_ = true;
    unsettled_ = true;
    observer_.begins();
    while (!group.isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    waiting_ = false;
    observer_.ends();
    callMain();
}

void QtDispatcher::callMain()
{
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool QtDispatcher::event(QEvent* event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    if (!runningMain_ && !waiting_) {
        runNextOfMain();
        settle();
    }
    return true;
}

void QtDispatcher::runNextOfMain()
{
    std::unique_lock lock(mutex_);
    if (main_.empty()) {
        return;
    }
    const Task task = std::move(main_.front());
    main_.pop_front();
    lock.unlock();
    runningMain_ = true;
    task();
    runningMain_ = false;
    callMain();
}

void QtDispatcher::settle()
{
    std::unique_lock lock(mutex_);
    const bool isSettled = main_.empty() && unfinished_ == 0;
    lock.unlock();
    if (isSettled && std::exchange(unsettled_, false)) {
        observer_.isSettled();
    }
}

} // namespace corvellane
