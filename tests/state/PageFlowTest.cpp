#include "state/PageFlow.h"
#include "state/FinderAccess.h"

#include <gtest/gtest.h>

namespace corvellane {
namespace {

TEST(Page, comesFromItsNumberAndFromNoOther)
{
    EXPECT_EQ(pageFromRawValue(0), Page::intro);
    EXPECT_EQ(pageFromRawValue(4), Page::summary);
    EXPECT_EQ(pageFromRawValue(5), std::nullopt);
    EXPECT_EQ(pageFromRawValue(-1), std::nullopt);
}

TEST(FinderAccess, comesFromItsExactTextAndFromNoOther)
{
    EXPECT_EQ(finderAccessFromRawValue("-1"), FinderAccess::unknown);
    EXPECT_EQ(finderAccessFromRawValue("0"), FinderAccess::denied);
    EXPECT_EQ(finderAccessFromRawValue("1"), FinderAccess::allowed);
    for (const char* other : {"", "01", " 1", "1 ", "2"}) {
        EXPECT_EQ(finderAccessFromRawValue(other), std::nullopt) << other;
    }
}

TEST(PageFlow, enablesTheButtonsByPageAndSelection)
{
    const ProductSelection none;
    ProductSelection unticked({"/a"});
    unticked.toggle("/a");
    ProductSelection ticked({"/a", "/b"});
    ticked.toggle("/a");
    for (const Page page : allPages) {
        EXPECT_EQ(isGoBackEnabled(page), page != Page::intro && page != Page::summary);
        EXPECT_EQ(isForwardEnabled(page, none), page != Page::products);
        EXPECT_EQ(isForwardEnabled(page, unticked), page != Page::products);
        EXPECT_TRUE(isForwardEnabled(page, ticked));
        EXPECT_EQ(isSelectAllVisible(page), page == Page::products);
    }
    EXPECT_FALSE(isSelectAllEnabled(none));
    EXPECT_TRUE(isSelectAllEnabled(unticked));
}

TEST(PageFlow, showsTheFirstAlertWhoseConditionHolds)
{
    struct Row {
        AlertFlags flags;
        Page page;
        Alert shown;
    };
    const AlertFlags everything{false, true, true, true, true};
    const AlertFlags agreed{true, true, true, true, true};
    const AlertFlags finderOnly{true, true, false, true, true};
    const AlertFlags noneAsked{false, false, false, false, false};
    const std::vector<Row> rows{
        {everything, Page::intro, Alert::agreement},
        {everything, Page::install, Alert::agreement},
        {everything, Page::summary, Alert::agreement},
        {agreed, Page::license, Alert::none},
        {agreed, Page::install, Alert::installConfirmation},
        {agreed, Page::summary, Alert::logDetails},
        {finderOnly, Page::install, Alert::automationPermission},
        {finderOnly, Page::products, Alert::none},
        {noneAsked, Page::install, Alert::none},
        {noneAsked, Page::summary, Alert::none},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(visibleAlert(row.page, row.flags), row.shown) << rawValue(row.page);
    }
}

} // namespace
} // namespace corvellane
