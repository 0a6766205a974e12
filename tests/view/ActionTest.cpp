#include "view/Action.h"

#include <gtest/gtest.h>

namespace corvellane::view {
namespace {

using Change = Action<int(int)>;

int plus(int& number, int other)
{
    return number += other;
}

TEST(Action, isEqualToWhatWouldDoTheSameAndDoesIt)
{
    int number = 3;
    int other = 3;
    const Change add = Change::calling<&plus>(number);
    EXPECT_EQ(add, Change::calling<&plus>(number));
    EXPECT_NE(add, Change::calling<&plus>(other));
    EXPECT_NE(add, Change());
    EXPECT_TRUE(add);
    EXPECT_FALSE(Change());
    EXPECT_EQ(add(4), 7);
}

} // namespace
} // namespace corvellane::view
