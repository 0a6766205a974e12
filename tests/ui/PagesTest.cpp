#include "tests/ui/WizardWorld.h"
#include <set>

namespace corvellane {
namespace {

TEST_F(WizardWorld, listsProductsByTheirNames)
{
    ProductSelection products({"/x/b.plugin", "/y/A.plugin", "/a/a.plugin", "/z/Suite"});
    products.toggle("/y/A.plugin");
    settings->products.set(products);
    settings->currentPage.set(Page::products);
    const List list = allOf<List>(body()).at(0);
    EXPECT_EQ(*list.paths, (std::vector<std::string>{"/y/A.plugin", "/z/Suite", "/a/a.plugin", "/x/b.plugin"}));
    EXPECT_EQ(list.ticks, (std::vector<bool>{false, true, true, true}));
    EXPECT_EQ(list.plain, (Symbol{"square", Tint::secondaryLabel, 14}));
    EXPECT_EQ(list.ticked, (Symbol{"checkmark.square.fill", Tint::blue, 14}));
    EXPECT_EQ(list.font, (Font{14, false}));

    settings->currentPage.set(Page::install);
    const List selected = allOf<List>(body()).at(0);
    EXPECT_EQ(*selected.paths, (std::vector<std::string>{"/z/Suite", "/a/a.plugin", "/x/b.plugin"}));
    EXPECT_EQ(selected.plain.tint, Tint::gray);
    EXPECT_TRUE(selected.ticks.empty());
    EXPECT_FALSE(selected.toggle);
}

TEST_F(WizardWorld, togglesOneProductAtAClickAndLeavesEarlierTreesAsTheyWere)
{
    addProducts({"A", "B"});
    settings->currentPage.set(Page::products);
    const View before = body();
    const List list = allOf<List>(before).at(0);
    list.toggle("/Resources/Products/B");
    const View after = body();
    EXPECT_NE(after, before);
    EXPECT_EQ(allOf<List>(before).at(0).ticks, (std::vector<bool>{true, true}));
    EXPECT_EQ(allOf<List>(after).at(0).ticks, (std::vector<bool>{true, false}));
    EXPECT_TRUE(allOf<List>(after).at(0).paths.isSame(list.paths)) << "the paths are not copied";
    list.toggle("/Resources/Products/B");
    EXPECT_EQ(body(), before);
}

TEST_F(WizardWorld, showsBothOutcomes)
{
    settings->currentPage.set(Page::summary);
    const View success = body();
    EXPECT_EQ(allOf<Symbol>(success).back(), (Symbol{"checkmark.circle", Tint::green, 60}));
    EXPECT_FALSE(press(success, "Details"));

    settings->completedWithErrors.set(true);
    const View failure = body();
    EXPECT_EQ(allOf<Symbol>(failure).back(), (Symbol{"exclamationmark.circle", Tint::red, 60}));
    const Text message = allOf<Text>(failure).back();
    EXPECT_EQ(message.text, "The installation was not completed successfully.");
    EXPECT_TRUE(message.announced);
    EXPECT_EQ(message.lines, Placement::centre);
    EXPECT_EQ(viewsOf<Text>(failure).back().padding, (Padding{16, 16, 16, 0}));
    EXPECT_TRUE(press(failure, "Details"));
    EXPECT_TRUE(settings->showLogDetailsWindow.get());
    EXPECT_TRUE(press(failure, "Details"));
    EXPECT_FALSE(settings->showLogDetailsWindow.get());
}

TEST_F(WizardWorld, makesItsContentAnewForEveryPage)
{
    std::set<std::string> identities;
    for (const Page page : allPages) {
        settings->currentPage.set(page);
        identities.insert(body().children.at(0).children.at(1).children.at(2).children.at(0).children.at(0).identity);
    }
    EXPECT_EQ(identities.size(), allPages.size());
}

} // namespace
} // namespace corvellane
