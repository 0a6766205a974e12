#include "platform/qt/QtDispatcher.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace corvellane {

QtDispatcher::~QtDispatcher()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (worker_.joinable()) {
        worker_.join();
    }
}

void QtDispatcher::submitToBackground(Task task)
{
    const std::lock_guard lock(mutex_);
    background_.push_back(std::move(task));
    if (!worker_.joinable()) {
        worker_ = std::thread([this] { work(); });
    }
    changed_.notify_all();
}

void QtDispatcher::submitToMain(Task task)
{
    {
        const std::lock_guard lock(mutex_);
        main_.push_back(std::move(task));
    }
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool QtDispatcher::event(QEvent* event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    if (!runningMain_) {
        runNextOfMain();
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
    lock.lock();
    if (!main_.empty()) {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

void QtDispatcher::work()
{
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [&] { return !background_.empty() || ending_; });
        if (background_.empty()) {
            return;
        }
        Task task = std::move(background_.front());
        background_.pop_front();
        lock.unlock();
        task();
        task = nullptr;
        lock.lock();
    }
}

} // namespace corvellane
