#include "state/PageFlow.h"
#include "state/FinderAccess.h"

#include <gmock/gmock.h>

namespace corvellane {
namespace {

using testing::ElementsAre;

TEST(Page, comesFromItsNumberAndHasNeighbours)
{
    EXPECT_THAT(allPages, ElementsAre(Page::intro, Page::license, Page::products, Page::install, Page::summary));
    EXPECT_EQ(pageFromRawValue(-1), std::nullopt);
    EXPECT_EQ(pageFromRawValue(0), Page::intro);
    EXPECT_EQ(pageFromRawValue(3), Page::install);
    EXPECT_EQ(pageFromRawValue(5), std::nullopt);
    EXPECT_EQ(pageBefore(Page::intro), Page::intro);
    EXPECT_EQ(pageAfter(Page::install), Page::summary);
    EXPECT_EQ(pageAfter(Page::summary), Page::summary);
}

TEST(FinderAccess, comesFromItsExactTextAndFromNoOther)
{
    EXPECT_EQ(finderAccessFromRawValue("-1"), FinderAccess::unknown);
    EXPECT_EQ(finderAccessFromRawValue("1"), FinderAccess::allowed);
    for (const char* other : {"", "01", " 1", "1 "}) {
        EXPECT_EQ(finderAccessFromRawValue(other), std::nullopt) << other;
    }
}

/// For each page, which of its buttons can be pressed.
std::vector<std::string> enabledButtons(const ProductSelection& products)
{
    std::vector<std::string> lines;
    for (const Page page : allPages) {
        std::string line(nameOf(page));
        line += isGoBackEnabled(page) ? " back" : "";
        line += isForwardEnabled(page, products) ? " forward" : "";
        line += isSelectAllVisible(page) && isSelectAllEnabled(products) ? " all" : "";
        lines.push_back(line);
    }
    return lines;
}

TEST(PageFlow, enablesTheButtonsByPageAndSelection)
{
    ProductSelection products;
    EXPECT_THAT(enabledButtons(products),
        ElementsAre(
            "intro forward", "license back forward", "products back", "install back forward", "summary forward"));
    products = ProductSelection({"/a", "/b"});
    products.toggle("/a");
    EXPECT_THAT(enabledButtons(products),
        ElementsAre("intro forward", "license back forward", "products back forward all", "install back forward",
            "summary forward"));
    products.toggle("/b");
    EXPECT_THAT(enabledButtons(products),
        ElementsAre(
            "intro forward", "license back forward", "products back all", "install back forward", "summary forward"));
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
