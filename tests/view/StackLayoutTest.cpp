#include "view/StackLayout.h"
#include "view/Metrics.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvellane::view {
namespace {

struct Case {
    const char* what;
    int total;
    std::vector<StackItem> items;
    std::vector<int> lengths;
};

StackItem fixed(int length)
{
    return {{length, length}, 0};
}

StackItem stretching(int minimum, double priority = 0)
{
    return {{minimum, unbounded}, priority};
}

TEST(Distribution, givesEveryChildItsLength)
{
    const std::vector<Case> cases{
        {"one takes all", 405, {stretching(0)}, {405}},
        {"equal shares", 300, {stretching(0), fixed(60), stretching(0)}, {120, 60, 120}},
        {"what does not divide goes to the first ones", 302, {stretching(0), stretching(0), stretching(0)},
            {101, 101, 100}},
        {"a minimum beyond the share", 100, {stretching(60), stretching(8), stretching(8)}, {60, 20, 20}},
        {"the higher priority takes everything", 400, {stretching(8, 0.1), stretching(8), stretching(8, 0.5)},
            {8, 8, 384}},
        {"a limit of the higher priority passes the rest on", 400, {{{0, 100}, 1}, stretching(0), stretching(0)},
            {100, 150, 150}},
        {"a limited child comes before those without", 632, {stretching(8), {{0, 500}, 0}, stretching(8)},
            {66, 500, 66}},
        {"limited children share what is too little", 100, {{{0, 80}, 0}, {{0, 30}, 0}, stretching(0)}, {70, 30, 0}},
        {"too little for the minimums", 50, {fixed(30), stretching(20), fixed(30)}, {30, 20, 30}},
        {"nothing to share out", 100, {}, {}},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(distribute(each.total, each.items), each.lengths) << each.what;
    }
}

} // namespace
} // namespace corvellane::view
