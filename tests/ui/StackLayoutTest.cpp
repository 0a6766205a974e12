#include "ui/StackLayout.h"
#include "ui/Metrics.h"

#include <gmock/gmock.h>

#include <vector>

namespace corvellane {
namespace {

using testing::ElementsAre;

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

TEST(Distribution, laysOutTheWindow)
{
    const StackItem sideBar{{180, 195}, 0};
    const StackItem mainColumn = stretching(150);
    const std::vector<StackItem> window{sideBar, mainColumn};
    EXPECT_THAT(distribute(648, window), ElementsAre(195, 453));
    EXPECT_THAT(distribute(1296, window), ElementsAre(195, 1101));
    EXPECT_THAT(distribute(400, window), ElementsAre(195, 205));
    EXPECT_THAT(distribute(335, window), ElementsAre(185, 150));
    EXPECT_THAT(distribute(300, window), ElementsAre(180, 150));
}

TEST(Distribution, laysOutTheSideBar)
{
    const std::vector<StackItem> sideBar{
        stretching(8, 0.1), {{38, 40}, 0}, stretching(8), stretching(8), fixed(100), stretching(8, 0.5)};
    EXPECT_THAT(distribute(405, sideBar), ElementsAre(8, 38, 8, 8, 100, 243));
    EXPECT_THAT(distribute(810, sideBar), ElementsAre(8, 38, 8, 8, 100, 648));
}

TEST(Distribution, laysOutTheMainColumn)
{
    const std::vector<StackItem> column{stretching(20), fixed(32), stretching(40), stretching(8), fixed(56)};
    EXPECT_THAT(distribute(405 - 32, column), ElementsAre(95, 32, 95, 95, 56));
    EXPECT_THAT(distribute(810 - 32, column), ElementsAre(230, 32, 230, 230, 56));
    EXPECT_THAT(distribute(170, column), ElementsAre(21, 32, 40, 21, 56)) << "a small window keeps the minimums";
}

} // namespace
} // namespace corvellane
