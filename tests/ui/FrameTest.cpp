#include "tests/ui/WizardWorld.h"

namespace corvellane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> sideBarLabels{"Introduction", "License", "Products", "Selected Products", "Summary"};

TEST_F(WizardWorld, saysOnEveryPageWhatItIsAbout)
{
    addProducts({"Suite"});
    const std::vector<std::pair<Page, std::vector<std::string>>> cases{
        {Page::intro,
            {"Welcome to the Corvellane Plugin Installer",
                "You will be guided through the steps necessary to use this software.", "(Go Back)", "[Next]"}},
        {Page::license, {"Software License Agreement", "[Go Back]", "[Next]"}},
        {Page::products, {"Select Products to install", "[Select All]", "[Go Back]", "[Next]"}},
        {Page::install, {"The following Products will be installed", "[Go Back]", "[Next]"}},
        {Page::summary, {"", "You have been successfully installed selected products.", "(Go Back)", "[Close]"}},
    };
    for (const auto& [page, afterSideBar] : cases) {
        settings->currentPage.set(page);
        std::vector<std::string> expected = sideBarLabels;
        expected.insert(expected.end(), afterSideBar.begin(), afterSideBar.end());
        EXPECT_EQ(words(), expected) << nameOf(page);
    }
}

TEST_F(WizardWorld, marksExactlyTheCurrentPage)
{
    for (const Page page : allPages) {
        settings->currentPage.set(page);
        const std::vector<View> symbols = viewsOf<Symbol>(body());
        for (const Page each : allPages) {
            const View& dot = symbols.at(static_cast<std::size_t>(rawValue(each)));
            EXPECT_EQ(
                std::get<Symbol>(dot.element), (Symbol{"circle.fill", each == page ? Tint::blue : Tint::gray, 8}));
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
    EXPECT_THAT(priorities, ElementsAre(0.1, 0, 0, 0, 0, 0.5));
    EXPECT_EQ(sideBar.children.at(1).frame, (Frame{180, 180, 38, 40}));
    const View& mainColumn = mainRow.children.at(1);
    EXPECT_EQ(std::get<Gap>(mainColumn.children.at(0).element), (Gap{20, unbounded}));
    EXPECT_EQ(mainColumn.children.at(1).padding, below);
    EXPECT_EQ(mainColumn.children.at(2).children.at(0).backdrop, (Backdrop{Tint::white, 0, Tint::separator}));
    EXPECT_TRUE(std::holds_alternative<Nothing>(root.children.at(1).element)) << "no alert, no layer";
}

TEST_F(WizardWorld, walksThroughThePagesByItsButtons)
{
    addProducts({"Suite"});
    EXPECT_FALSE(pressed("Go Back"));
    EXPECT_TRUE(pressed("Next"));
    EXPECT_TRUE(pressed("Next"));
    EXPECT_EQ(settings->currentPage.get(), Page::license) << "not without the agreement";
    EXPECT_TRUE(pressed("Agree"));
    EXPECT_TRUE(pressed("Next"));
    EXPECT_EQ(settings->currentPage.get(), Page::install);
    EXPECT_TRUE(pressed("Go Back"));
    EXPECT_EQ(settings->currentPage.get(), Page::products);
    EXPECT_TRUE(pressed("Next"));
    platform.scripts.answerText("Ok");
    EXPECT_TRUE(pressed("Next"));
    EXPECT_TRUE(pressed("Install"));
    platform.dispatcher.runMainQueue();
    EXPECT_TRUE(pressed("Close"));
    EXPECT_EQ(platform.application.terminations, 1);
}

TEST_F(WizardWorld, offersOnlyWhatTheSelectionAllows)
{
    settings->currentPage.set(Page::products);
    EXPECT_THAT(words(), testing::IsSupersetOf({"No products found", "(Select All)", "(Next)"}));
    addProducts({"A", "B"});
    const auto toggle = allOf<List>(body()).at(0).toggle;
    toggle("/Resources/Products/A");
    toggle("/Resources/Products/B");
    EXPECT_THAT(words(), testing::IsSupersetOf({"[Select All]", "(Next)"}));
    EXPECT_TRUE(pressed("Select All"));
    EXPECT_THAT(words(), testing::IsSupersetOf({"[Select All]", "[Next]"}));
    EXPECT_TRUE(pressed("Select All")) << "also with everything ticked";
}

TEST_F(WizardWorld, loadsTheAgreementWhenItIsMade)
{
    EXPECT_THAT(platform.console.lines, ElementsAre("File not found"));
    settings->currentPage.set(Page::license);
    const std::vector<RichText> viewers = allOf<RichText>(body());
    ASSERT_EQ(viewers.size(), 1U);
    EXPECT_THAT(viewers[0].text->text, IsEmpty());
}

} // namespace
} // namespace corvellane
