#include "ui/AlertView.h"
#include "tests/ui/WizardWorld.h"

namespace corvellane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AlertViewTest : public WizardWorld {
protected:
    View alert() { return AlertView{*settings}.body(); }

    void expectCard(const std::string& identity, Frame frame, Tint fill)
    {
        const View layer = alert();
        EXPECT_EQ(layer.identity, identity);
        ASSERT_EQ(layer.children.size(), 2U);
        EXPECT_EQ(std::get<Fill>(layer.children[0].element), (Fill{Tint::gray, 0.65}));
        EXPECT_TRUE(std::get<Layers>(layer.element).modal);
        const View& centredRow = layer.children[1].children.at(1);
        EXPECT_EQ(centredRow.children.at(1).frame, frame);
        EXPECT_EQ(centredRow.children.at(1).backdrop, (Backdrop{fill, 8, {}}));
    }
};

TEST_F(AlertViewTest, asksForTheAgreement)
{
    settings->currentPage.set(Page::license);
    settings->nextAction();
    expectCard("agreement", {{}, 500, {}, 180}, Tint::white);
    EXPECT_THAT(wordsOf(alert()),
        ElementsAre("To continue using the software you must agree to the terms of the software license agreement.",
            "Click Agree to continue or click Disagree to cancel and quit the Installer.", "[Read License]",
            "[Disagree]", "[Agree]"));
    EXPECT_EQ(allOf<Text>(alert())[0].font, (Font{13, true}));
    EXPECT_EQ(allOf<Text>(alert())[1].font, (Font{13, false}));
    EXPECT_TRUE(press(alert(), "Read License"));
    EXPECT_EQ(alert(), View{});
    EXPECT_EQ(settings->currentPage.get(), Page::license);
    settings->nextAction();
    EXPECT_TRUE(press(alert(), "Disagree"));
    EXPECT_EQ(platform.application.terminations, 1);
    EXPECT_TRUE(press(alert(), "Agree"));
    EXPECT_TRUE(settings->showLicenseAlert.get());
    EXPECT_EQ(alert(), View{});
    EXPECT_EQ(settings->currentPage.get(), Page::products);
    settings->goBack();
    settings->nextAction();
    EXPECT_EQ(settings->currentPage.get(), Page::products) << "agreed once and for all";
}

TEST_F(AlertViewTest, confirmsTheInstallation)
{
    settings->currentPage.set(Page::install);
    settings->nextAction();
    expectCard("installConfirmation", {{}, 280, {}, 110}, Tint::white);
    EXPECT_THAT(wordsOf(alert()),
        ElementsAre("Click \"Install\" button to complete the installation.", "[Cancel]", "[Install]"));
    EXPECT_EQ(allOf<Button>(alert())[0].style, Button::Style::push);
    EXPECT_EQ(allOf<Button>(alert())[1].style, Button::Style::emphasised);
    EXPECT_TRUE(press(alert(), "Cancel"));
    EXPECT_EQ(alert(), View{});
    EXPECT_THAT(platform.scripts.sources, IsEmpty());
    settings->nextAction();
    platform.scripts.answerText("User canceled.");
    EXPECT_TRUE(press(alert(), "Install"));
    platform.dispatcher.runMainQueue();
    EXPECT_EQ(platform.scripts.sources.size(), 1U);
    EXPECT_EQ(alert(), View{});
}

TEST_F(AlertViewTest, waitsForTheAutomationPermission)
{
    settings->currentPage.set(Page::install);
    settings->showFinderAlert.set(true);
    expectCard("automationPermission", {{}, 500, {}, 150}, Tint::white);
    EXPECT_THAT(wordsOf(alert()),
        ElementsAre(
            "To make changes with Installer please allow Finder access from Settings", "[Close]", "[Open settings]"));
    EXPECT_EQ(allOf<Button>(alert())[1].symbol, "gear");
    EXPECT_TRUE(press(alert(), "Open settings"));
    EXPECT_THAT(platform.workspace.urls,
        ElementsAre("x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"));
    EXPECT_TRUE(press(alert(), "Close"));
    EXPECT_EQ(platform.application.terminations, 1);
}

TEST_F(AlertViewTest, probesOnceATickUntilAllowed)
{
    settings->currentPage.set(Page::install);
    settings->showFinderAlert.set(true);
    const Timer timer = allOf<Timer>(alert()).at(0);
    EXPECT_EQ(timer.seconds, 1.0);
    platform.scripts.answerText("0");
    EXPECT_TRUE(timer.tick());
    EXPECT_EQ(platform.scripts.sources.size(), 1U);
    settings->accessType.set(FinderAccess::allowed);
    EXPECT_FALSE(timer.tick());
    EXPECT_EQ(platform.scripts.sources.size(), 1U);
}

TEST_F(AlertViewTest, showsAndCopiesTheLog)
{
    settings->logDetailsStr = std::string("cp: <b>no</b> & such\nfile");
    settings->currentPage.set(Page::summary);
    settings->showLogDetailsWindow.set(true);
    expectCard("logDetails", {{}, 500, {}, 400}, Tint::windowBackground);
    EXPECT_THAT(wordsOf(alert()), ElementsAre("[Copy to Clipboard]", "[Close]"));
    const View log = viewsOf<LogArea>(alert()).at(0);
    EXPECT_EQ(log.frame, (Frame{500, 500, 300, 300}));
    EXPECT_EQ(std::get<LogArea>(log.element).text, settings->logDetailsStr);
    EXPECT_TRUE(press(alert(), "Copy to Clipboard"));
    EXPECT_EQ(platform.pasteboard.contents, *settings->logDetailsStr);
    EXPECT_EQ(alert().identity, "logDetails") << "stays open";
    EXPECT_TRUE(press(alert(), "Close"));
    EXPECT_FALSE(settings->showLogDetailsWindow.get());
}

} // namespace
} // namespace corvellane
