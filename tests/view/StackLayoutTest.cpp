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

constexpr StackItem fixed30{{30, 30}, 0};
constexpr StackItem any{{0, unbounded}, 0};
constexpr StackItem from8{{8, unbounded}, 0};

TEST(Distribution, givesEveryChildItsLength)
{
    const std::vector<Case> cases{
        {"equal shares", 300, {any, fixed30, any}, {135, 30, 135}},
        {"what does not divide goes to the first ones", 302, {any, any, any}, {101, 101, 100}},
        {"a minimum beyond the share", 100, {{{60, unbounded}, 0}, from8, from8}, {60, 20, 20}},
        {"the higher priority takes everything", 400, {{{8, unbounded}, 0.1}, from8, {{8, unbounded}, 0.5}},
            {8, 8, 384}},
        {"a limit of the higher priority passes the rest on", 400, {{{0, 100}, 1}, any, any}, {100, 150, 150}},
        {"a limited child comes before those without", 632, {from8, {{0, 500}, 0}, from8}, {66, 500, 66}},
        {"limited children share what is too little", 100, {{{0, 80}, 0}, {{0, 30}, 0}, any}, {70, 30, 0}},
        {"too little for the minimums", 50, {fixed30, from8, fixed30}, {30, 8, 30}},
        {"nothing to share out", 100, {}, {}},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(distribute(each.total, each.items), each.lengths) << each.what;
    }
}

} // namespace
} // namespace corvellane::view
