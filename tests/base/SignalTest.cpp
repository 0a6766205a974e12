#include "base/Observable.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <vector>

namespace {
std::size_t allocations = 0;
} // namespace

void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

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

TEST(Observable, allocatesNothingForAWriteWithManyObservers)
{
    Signal signal;
    Observable<bool> value(signal, false);
    int calls = 0;
    std::vector<Subscription> subscriptions;
    for (int count = 0; count < 100; ++count) {
        subscriptions.push_back(signal.subscribe([&] { ++calls; }));
    }
    const std::size_t before = allocations;
    value.set(true);
    value.modify([](bool& stored) { stored = !stored; });
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(calls, 200);
}

} // namespace
} // namespace corvellane
