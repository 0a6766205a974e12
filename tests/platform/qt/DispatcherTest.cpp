#include "platform/qt/QtDispatcher.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <latch>
#include <vector>

namespace corvellane {
namespace {

using namespace std::chrono_literals;

/// Runs the event loop until a task asks for its end, five seconds at most.
void runEventLoop(QEventLoop& loop)
{
    QTimer::singleShot(5s, &loop, [&] { loop.exit(1); });
    EXPECT_EQ(loop.exec(), 0) << "nobody ended the loop";
}

TEST(QtDispatcher, keepsOneWorkerAwayFromTheMainThread)
{
    std::vector<std::thread::id> threads;
    {
        QtDispatcher dispatcher;
        dispatcher.submitToBackground([&] { std::this_thread::sleep_for(20ms); });
        for (int count = 0; count < 3; ++count) {
            dispatcher.submitToBackground([&] { threads.push_back(std::this_thread::get_id()); });
        }
    }
    ASSERT_EQ(threads.size(), 3U) << "work was left undone";
    EXPECT_NE(threads.front(), std::this_thread::get_id());
    EXPECT_EQ(threads, std::vector(3, threads.front()));
}

TEST(QtDispatcher, runsTheCompletionOnlyAfterTheBlockingWaitHasReturned)
{
    QtDispatcher dispatcher;
    QEventLoop loop;
    std::vector<int> steps;
    std::latch executed(1);
    dispatcher.submitToBackground([&] {
        dispatcher.submitToMain([&] {
            steps.push_back(2);
            loop.quit();
        });
        executed.count_down();
    });
    executed.wait();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    steps.push_back(1);
    runEventLoop(loop);
    EXPECT_EQ(steps, (std::vector{1, 2}));
}

TEST(QtDispatcher, runsMainTasksInOrderAndNeverOneWithinAnother)
{
    QtDispatcher dispatcher;
    QEventLoop loop;
    std::vector<int> steps;
    dispatcher.submitToMain([&] {
        steps.push_back(1);
        QCoreApplication::processEvents();
        steps.push_back(2);
        dispatcher.submitToMain([&] {
            steps.push_back(4);
            loop.quit();
        });
    });
    dispatcher.submitToMain([&] { steps.push_back(3); });
    EXPECT_TRUE(steps.empty());
    runEventLoop(loop);
    EXPECT_EQ(steps, (std::vector{1, 2, 3, 4}));
}

} // namespace
} // namespace corvellane
