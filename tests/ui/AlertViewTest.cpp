#include "ui/AlertView.h"
#include "tests/ui/WizardWorld.h"

namespace corvellane {
namespace {

class AlertViewTest : public WizardWorld {
protected:
    View alert() { return AlertView{*settings}.body(); }

    View alertAfter(Page page, Observable<bool>& flag)
    {
        settings->currentPage.set(page);
        flag.set(true);
        return alert();
    }
};

void expectCard(const View& layer, const std::string& identity, Frame frame, Tint fill)
{
    EXPECT_EQ(layer.identity, identity);
    EXPECT_TRUE(std::get<Layers>(layer.element).modal);
    EXPECT_EQ(std::get<Fill>(layer.children.at(0).element), (Fill{Tint::gray, 0.65}));
    const View& card = layer.children.at(1).children.at(1).children.at(1);
    EXPECT_EQ(card.frame, frame);
    EXPECT_EQ(card.backdrop, (Backdrop{fill, 8, {}}));
}

TEST_F(AlertViewTest, asksForTheAgreement)
{
    const View asked = alertAfter(Page::license, settings->showLicenseAlert);
    expectCard(asked, "agreement", {{}, 500, {}, 180}, Tint::white);
    EXPECT_EQ(allOf<Text>(asked)[0].font, (Font{13, true}));
    EXPECT_EQ(allOf<Text>(asked)[1].font, (Font{13, false}));
    EXPECT_TRUE(press(asked, "Disagree"));
    EXPECT_EQ(platform.application.terminations, 1);
    EXPECT_TRUE(press(asked, "Agree"));
    EXPECT_EQ(alert(), View{});
    EXPECT_EQ(settings->currentPage.get(), Page::products);
    settings->goBack();
    settings->nextAction();
    EXPECT_EQ(settings->currentPage.get(), Page::products) << "agreed once and for all";
}

TEST_F(AlertViewTest, confirmsTheInstallation)
{
    const View asked = alertAfter(Page::install, settings->showPermanentlyAlert);
    expectCard(asked, "installConfirmation", {{}, 280, {}, 110}, Tint::white);
    EXPECT_EQ(allOf<Button>(asked)[0].style, Button::Style::push);
    EXPECT_EQ(allOf<Button>(asked)[1].style, Button::Style::emphasised);
    EXPECT_TRUE(press(asked, "Cancel"));
    EXPECT_EQ(alert(), View{});
    EXPECT_TRUE(platform.scripts.sources.empty());
}

TEST_F(AlertViewTest, probesOnceATickUntilThePermissionIsThere)
{
    const View asked = alertAfter(Page::install, settings->showFinderAlert);
    expectCard(asked, "automationPermission", {{}, 500, {}, 150}, Tint::white);
    EXPECT_EQ(allOf<Button>(asked)[1].symbol, "gear");
    const Timer timer = allOf<Timer>(asked).at(0);
    EXPECT_EQ(timer.seconds, 1.0);
    EXPECT_TRUE(timer.tick());
    settings->accessType.set(FinderAccess::allowed);
    EXPECT_FALSE(timer.tick());
    EXPECT_EQ(platform.scripts.sources.size(), 1U);
    EXPECT_TRUE(press(asked, "Close"));
    EXPECT_EQ(platform.application.terminations, 1);
}

TEST_F(AlertViewTest, showsTheLog)
{
    settings->logDetailsStr = std::string("cp: <b>no</b> & such\nfile");
    const View shown = alertAfter(Page::summary, settings->showLogDetailsWindow);
    expectCard(shown, "logDetails", {{}, 500, {}, 400}, Tint::windowBackground);
    EXPECT_EQ(allOf<LogArea>(shown).at(0).text, settings->logDetailsStr);
}

} // namespace
} // namespace corvellane
