#include "platform/qt/QtDispatcher.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <vector>

namespace corvellane {
namespace {

TEST(QtDispatcher, runsMainTasksInOrderLaterAndNeverOneWithinAnother)
{
    QtDispatcher dispatcher;
    std::vector<int> steps;
    dispatcher.submitToMain([&] {
        steps.push_back(1);
        QCoreApplication::sendPostedEvents();
        steps.push_back(2);
        dispatcher.submitToMain([&] { steps.push_back(4); });
    });
    dispatcher.submitToMain([&] { steps.push_back(3); });
    EXPECT_TRUE(steps.empty());
    for (int turn = 0; turn < 10; ++turn) {
        QCoreApplication::sendPostedEvents();
    }
    EXPECT_EQ(steps, (std::vector{1, 2, 3, 4}));
}

} // namespace
} // namespace corvellane
