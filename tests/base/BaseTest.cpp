#include "base/Observable.h"
#include "base/Snapshot.h"
#include "base/WorkerThread.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <vector>

namespace corvellane {
namespace {

TEST(Signal, callsItsObserversInOrderUntilTheyLetGo)
{
    Signal signal;
    std::vector<int> calls;
    auto first = signal.subscribe([&] { calls.push_back(1); });
    const auto second = signal.subscribe([&] { calls.push_back(2); });
    signal.emit();
    first.reset();
    signal.emit();
    EXPECT_EQ(calls, (std::vector{1, 2, 2}));
}

TEST(Signal, mayBeSubscribedToAndLeftDuringAnEmission)
{
    Signal signal;
    int calls = 0;
    std::vector<Subscription> late;
    Subscription leaving;
    leaving = signal.subscribe([&] {
        leaving.reset();
        for (int count = 0; count < 10; ++count) {
            late.push_back(signal.subscribe([&] { ++calls; }));
        }
    });
    signal.emit();
    EXPECT_EQ(calls, 0);
    signal.emit();
    EXPECT_EQ(calls, 10);
}

TEST(Observable, announcesOnceBeforeItStores)
{
    Signal signal;
    Observable<int> value(signal, 1);
    std::vector<int> seen;
    const auto subscription = signal.subscribe([&] { seen.push_back(value.get()); });
    value.set(2);
    value.set(2);
    value.modify([](int& stored) { stored += 5; });
    EXPECT_EQ(seen, (std::vector{1, 2, 2}));
    EXPECT_EQ(value.get(), 7);
}

TEST(Snapshot, isEqualToOneOfTheSameValue)
{
    const Snapshot<int> one(1);
    const Snapshot<int> copy = one;
    EXPECT_TRUE(copy.isSame(one));
    EXPECT_FALSE(Snapshot<int>(1).isSame(one));
    EXPECT_EQ(Snapshot<int>(1), one);
    EXPECT_FALSE(Snapshot<int>(2) == one);
}

TEST(WorkerThread, runsInOrderWhatWaitsAtItsEnd)
{
    std::vector<int> ran;
    {
        WorkerThread worker;
        worker.submit([] { std::this_thread::sleep_for(std::chrono::milliseconds(50)); });
        worker.submit([&] { ran.push_back(1); });
        worker.submit([&] { ran.push_back(2); });
    }
    EXPECT_EQ(ran, (std::vector{1, 2}));
}

} // namespace
} // namespace corvellane
