#include "tests/ui/WizardWorld.h"

namespace corvellane {
namespace {

TEST_F(WizardWorld, marksExactlyTheCurrentPage)
{
    for (const Page page : allPages) {
        settings->currentPage.set(page);
        const std::vector<View> symbols = viewsOf<Symbol>(body());
        for (const Page each : allPages) {
            const View& dot = symbols.at(static_cast<std::size_t>(rawValue(each)));
            const Tint tint = each == page ? Tint::blue : Tint::gray;
            EXPECT_EQ(std::get<Symbol>(dot.element), (Symbol{"circle.fill", tint, 8}));
            EXPECT_EQ(dot.frame, (Frame{8, 8, 8, 8}));
        }
    }
}

TEST_F(WizardWorld, framesThePagesAsDrawn)
{
    const View root = body();
    const View& mainRow = root.children.at(0);
    EXPECT_EQ(mainRow.backdrop.fill, Tint::windowBackground);
    const View& sideBar = mainRow.children.at(0);
    EXPECT_EQ(sideBar.frame, (Frame{180, 195, {}, {}}));
    std::vector<double> priorities;
    for (const View& child : sideBar.children) {
        priorities.push_back(child.priority);
    }
    EXPECT_THAT(priorities, testing::ElementsAre(0.1, 0, 0, 0, 0, 0.5));
    EXPECT_EQ(sideBar.children.at(1).frame, (Frame{180, 180, 38, 40}));
    const View& mainColumn = mainRow.children.at(1);
    EXPECT_EQ(mainColumn.children.at(2).children.at(0).backdrop, (Backdrop{Tint::white, 0, Tint::separator}));
    EXPECT_TRUE(std::holds_alternative<Nothing>(root.children.at(1).element)) << "no alert, no layer";
}

TEST_F(WizardWorld, loadsTheAgreementWhenItIsMade)
{
    EXPECT_EQ(platform.console.lines, (std::vector<std::string>{"File not found"}));
    settings->currentPage.set(Page::license);
    EXPECT_EQ(allOf<RichText>(body()).at(0).text->text, "");
}

TEST_F(WizardWorld, offersNothingWhereThereAreNoProducts)
{
    settings->currentPage.set(Page::products);
    EXPECT_EQ(allOf<Text>(body()).back().text, "No products found");
    EXPECT_FALSE(press(body(), "Select All"));
    EXPECT_FALSE(press(body(), "Next"));
}

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
    const List after = allOf<List>(body()).at(0);
    EXPECT_EQ(list.ticks, (std::vector<bool>{true, true}));
    EXPECT_EQ(after.ticks, (std::vector<bool>{true, false}));
    EXPECT_TRUE(after.paths.isSame(list.paths)) << "the paths are not copied";
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
    EXPECT_EQ(message.announcement, view::Announcement::focused);
    EXPECT_EQ(message.lines, Placement::centre);
    EXPECT_EQ(viewsOf<Text>(failure).back().padding, (Padding{16, 16, 16, 0}));
    EXPECT_TRUE(press(failure, "Details"));
    EXPECT_TRUE(settings->showLogDetailsWindow.get());
}

} // namespace
} // namespace corvellane
