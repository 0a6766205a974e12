#include "base/Observable.h"
#include "base/PathNames.h"
#include "base/SizeInWords.h"
#include "base/Snapshot.h"
#include "base/WorkerThread.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <vector>

namespace corvellane {
namespace {

TEST(Signal, callsItsObserversInOrderAndMayBeSubscribedToAndLeftMeanwhile)
{
    Signal signal;
    std::vector<int> calls;
    std::vector<Subscription> late;
    Subscription first = signal.subscribe([&] { calls.push_back(0); });
    Subscription leaving = signal.subscribe([&] {
        calls.push_back(1);
        first.reset();
        leaving.reset();
        for (int number = 3; number < 9; ++number) {
            late.push_back(signal.subscribe([&calls, number] { calls.push_back(number); }));
        }
    });
    const Subscription second = signal.subscribe([&] { calls.push_back(2); });
    signal.emit();
    EXPECT_EQ(calls, (std::vector{0, 1, 2}));
    signal.emit();
    EXPECT_EQ(calls, (std::vector{0, 1, 2, 2, 3, 4, 5, 6, 7, 8}));
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
    EXPECT_TRUE(Snapshot<int>(one).isSame(one));
    EXPECT_FALSE(Snapshot<int>(1).isSame(one));
    EXPECT_EQ(Snapshot<int>(1), one);
    EXPECT_FALSE(Snapshot<int>(2) == one);
}

TEST(PathNames, takePathsApart)
{
    EXPECT_EQ(lastPathComponent("/a/b//"), "b");
    EXPECT_EQ(withoutEnd("/a/b//"), "/a/b");
    EXPECT_EQ(withoutEnd("/"), "/");
    EXPECT_EQ(folderOf("/a/b"), "/a");
    EXPECT_EQ(folderOf("/a"), "");
}

TEST(SizeInWords, isRoundedUp)
{
    EXPECT_EQ(sizeInWords(0), "0 bytes");
    EXPECT_EQ(sizeInWords(1), "1 byte");
    EXPECT_EQ(sizeInWords(1000), "1.0 kB");
    EXPECT_EQ(sizeInWords(999'901), "1.0 MB");
    EXPECT_EQ(sizeInWords(12'340'000), "12.4 MB");
}

TEST(WorkerThread, runsInOrderOnAnotherThreadWhatWaitsAtItsEnd)
{
    std::vector<int> ran;
    std::thread::id thread;
    {
        WorkerThread worker;
        worker.submit([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            thread = std::this_thread::get_id();
        });
        worker.submit([&] { ran.push_back(1); });
        worker.submit([&] { ran.push_back(thread == std::this_thread::get_id() ? 2 : 0); });
    }
    EXPECT_EQ(ran, (std::vector{1, 2}));
    EXPECT_NE(thread, std::this_thread::get_id());
}

#ifdef __GLIBC__
TEST(WorkerThread, runsItselfWhatItHasNoThreadFor)
{
    pthread_attr_t before;
    pthread_attr_t huge;
    pthread_getattr_default_np(&before);
    pthread_getattr_default_np(&huge);
    pthread_attr_setstacksize(&huge, std::size_t{1} << 46U);
    ASSERT_EQ(pthread_setattr_default_np(&huge), 0);
    std::vector<int> ran;
    {
        WorkerThread worker;
        worker.submit([&] { ran.push_back(1); });
        EXPECT_EQ(ran, std::vector{1});
        pthread_setattr_default_np(&before);
        worker.submit([&] { ran.push_back(2); });
    }
    EXPECT_EQ(ran, (std::vector{1, 2}));
}
#endif

} // namespace
} // namespace corvellane
