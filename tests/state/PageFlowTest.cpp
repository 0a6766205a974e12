#include "state/PageFlow.h"

#include <gtest/gtest.h>

namespace corvellane {
namespace {

TEST(Page, comesFromItsNumberAndHasNeighbours)
{
    EXPECT_EQ(pageFromRawValue(-1), std::nullopt);
    EXPECT_EQ(pageFromRawValue(3), Page::install);
    EXPECT_EQ(pageFromRawValue(5), std::nullopt);
    EXPECT_EQ(pageBefore(Page::intro), Page::intro);
    EXPECT_EQ(pageAfter(Page::summary), Page::summary);
}

TEST(PageFlow, showsTheFirstAlertWhoseConditionHolds)
{
    constexpr AlertFlags everything{false, true, true, true, true};
    constexpr AlertFlags agreed{true, true, true, true, true};
    constexpr AlertFlags finderOnly{true, true, false, true, true};
    EXPECT_EQ(visibleAlert(Page::intro, everything), Alert::agreement);
    EXPECT_EQ(visibleAlert(Page::install, everything), Alert::agreement);
    EXPECT_EQ(visibleAlert(Page::license, agreed), Alert::none);
    EXPECT_EQ(visibleAlert(Page::install, agreed), Alert::installConfirmation);
    EXPECT_EQ(visibleAlert(Page::summary, agreed), Alert::logDetails);
    EXPECT_EQ(visibleAlert(Page::install, finderOnly), Alert::automationPermission);
    EXPECT_EQ(visibleAlert(Page::products, finderOnly), Alert::none);
    EXPECT_EQ(visibleAlert(Page::install, {}), Alert::none);
    EXPECT_EQ(visibleAlert(Page::summary, {}), Alert::none);
}

} // namespace
} // namespace corvellane
