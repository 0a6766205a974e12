#include "platform/qt/QtDispatcher.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace corvellane {

void QtDispatcher::submitToBackground(Task task)
{
    background_.submit(std::move(task));
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

} // namespace corvellane
