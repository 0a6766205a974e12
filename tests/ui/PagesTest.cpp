#include "tests/ui/WizardWorld.h"
#include "view/ListRows.h"

namespace corvellane {
namespace {

using testing::ElementsAre;

std::vector<std::string> namesOf(const std::vector<ListRow>& rows)
{
    std::vector<std::string> names;
    for (const ListRow& row : rows) {
        names.push_back(row.name.text);
    }
    return names;
}

TEST_F(WizardWorld, listsProductsByTheirNames)
{
    settings->products.set({{"/x/b.plugin", true}, {"/y/A.plugin", false}, {"/a/a.plugin", true}, {"/z/Suite/", true}});
    settings->currentPage.set(Page::products);
    const std::vector<ListRow> rows = rowsOf(allOf<List>(body()).at(0));
    EXPECT_THAT(namesOf(rows), ElementsAre("A.plugin", "Suite", "a.plugin", "b.plugin"));
    EXPECT_EQ(rows[0].identity, "/y/A.plugin");
    EXPECT_EQ(rows[0].symbol, (Symbol{"square", Tint::secondaryLabel, 14}));
    EXPECT_EQ(rows[1].symbol, (Symbol{"checkmark.square.fill", Tint::blue, 14}));
    EXPECT_EQ(rows[1].ticked, true);
    EXPECT_EQ(rows[1].name, (Text{"Suite", false, Font{14, false}})) << "names are never translated";

    settings->currentPage.set(Page::install);
    const std::vector<ListRow> selected = rowsOf(allOf<List>(body()).at(0));
    EXPECT_THAT(namesOf(selected), ElementsAre("Suite", "a.plugin", "b.plugin"));
    EXPECT_EQ(selected[0].identity, "Suite");
    EXPECT_EQ(selected[0].symbol.tint, Tint::gray);
    EXPECT_EQ(selected[0].ticked, std::nullopt);
}

TEST_F(WizardWorld, togglesOneProductAtAClick)
{
    addProducts({"A", "B"});
    settings->currentPage.set(Page::products);
    const List list = allOf<List>(body()).at(0);
    list.toggle.run("/Resources/Products/B");
    EXPECT_FALSE(rowsOf(list)[1].ticked.value());
    EXPECT_TRUE(rowsOf(list)[0].ticked.value());
    list.toggle.run("/Resources/Products/B");
    EXPECT_TRUE(rowsOf(list)[1].ticked.value());
    settings->currentPage.set(Page::install);
    EXPECT_EQ(allOf<List>(body()).at(0).toggle.run, nullptr);
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
