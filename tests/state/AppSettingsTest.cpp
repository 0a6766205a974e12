#include "state/AppSettings.h"

#include "tests/FakePlatform.h"

#include <gtest/gtest.h>

namespace corvellane {
namespace {

class AppSettingsTest : public testing::Test {
protected:
    /// The change signals that `action` causes.
    template <typename Action>
    int signalsOf(Action action)
    {
        int signals = 0;
        const auto subscription = settings->objectWillChange.subscribe([&] { ++signals; });
        action();
        return signals;
    }

    FakePlatform platform;
    std::shared_ptr<AppSettings> settings = std::make_shared<AppSettings>(platform.services());
};

TEST_F(AppSettingsTest, beginsWithTheFirstPageAndNothingElse)
{
    platform.addProduct("Velvetgrain Photo", {});
    EXPECT_EQ(settings->currentPage.get(), Page::intro);
    EXPECT_TRUE(settings->products.get().empty());
    EXPECT_EQ(settings->accessType.get(), FinderAccess::unknown);
    EXPECT_EQ(settings->visibleAlert(), Alert::none);
    EXPECT_FALSE(settings->agreeWithTerms.get() || settings->completedWithErrors.get());
    EXPECT_EQ(settings->logDetailsStr, "");
    EXPECT_EQ(&settings->pasteboard, &platform.pasteboard);
}

TEST_F(AppSettingsTest, announcesEveryWriteOnceAndTheLogNever)
{
    EXPECT_EQ(signalsOf([&] { settings->showLicenseAlert.set(false); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->toggleLogDetails(); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->logDetailsStr = "text"; }), 0);
    EXPECT_EQ(signalsOf([&] { settings->refreshProducts(); }), 2);
    EXPECT_EQ(signalsOf([&] { settings->selectAll(); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->toggleProduct("/a"); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->agreeWithLicense(); }), 2);
}

TEST_F(AppSettingsTest, movesThroughThePagesByTheAgreementAndTheConfirmation)
{
    settings->goBack();
    EXPECT_EQ(settings->currentPage.get(), Page::intro);
    settings->nextAction();
    settings->nextAction();
    EXPECT_EQ(settings->currentPage.get(), Page::license);
    EXPECT_EQ(settings->visibleAlert(), Alert::agreement);
    settings->closeLicenseAlert();
    EXPECT_EQ(settings->visibleAlert(), Alert::none);
    settings->nextAction();
    settings->agreeWithLicense();
    EXPECT_EQ(settings->currentPage.get(), Page::products);
    EXPECT_TRUE(settings->showLicenseAlert.get());
    EXPECT_EQ(settings->visibleAlert(), Alert::none);
    settings->goBack();
    settings->nextAction();
    EXPECT_EQ(settings->currentPage.get(), Page::products);
    settings->nextAction();
    EXPECT_EQ(signalsOf([&] { settings->nextAction(); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->nextAction(); }), 1);
    EXPECT_EQ(settings->visibleAlert(), Alert::installConfirmation);
    settings->closeInstallConfirmation();
    EXPECT_EQ(settings->currentPage.get(), Page::install);
    EXPECT_EQ(settings->visibleAlert(), Alert::none);
    settings->goBack();
    EXPECT_EQ(settings->currentPage.get(), Page::products);
    settings->currentPage.set(Page::summary);
    settings->nextAction();
    EXPECT_EQ(platform.application.terminations, 1);
    EXPECT_EQ(settings->currentPage.get(), Page::summary);
}

TEST_F(AppSettingsTest, findsTheFoldersOfTheProductsFolderAndTicksThem)
{
    platform.addProduct("b", {"b.plugin"});
    platform.addProduct("A", {});
    platform.files.folders["/Resources/Products"]["ReadMe.txt"] = false;
    platform.files.folders["/Resources/Products"]["unknown"] = std::nullopt;
    platform.files.folders["/Resources/Products/b"]["notes.txt"] = false;
    settings->refreshProducts();
    EXPECT_EQ(
        settings->products.get(), (ProductSelection{{"/Resources/Products/A", true}, {"/Resources/Products/b", true}}));
    EXPECT_EQ(settings->elementsToCopy(), std::vector<std::string>{"/Resources/Products/b/b.plugin"});
    settings->toggleProduct("/Resources/Products/b");
    EXPECT_TRUE(settings->selectedExist());
    EXPECT_TRUE(settings->elementsToCopy().empty());
    settings->toggleProduct("/Resources/Products/A");
    EXPECT_FALSE(settings->selectedExist());
    settings->selectAll();
    EXPECT_EQ(settings->products.get().at("/Resources/Products/b"), true);
    EXPECT_TRUE(platform.console.lines.empty());
}

TEST_F(AppSettingsTest, saysWhatItCannotListAndGoesOn)
{
    settings->refreshProducts();
    EXPECT_TRUE(settings->products.get().empty());
    platform.resources.hasFolder = false;
    settings->refreshProducts();
    platform.resources.hasFolder = true;
    platform.addProduct("b", {"b.plugin"});
    platform.addProduct("a", {"a.plugin"});
    settings->refreshProducts();
    platform.files.folders.erase("/Resources/Products/a");
    EXPECT_EQ(settings->elementsToCopy(), std::vector<std::string>{"/Resources/Products/b/b.plugin"});
    EXPECT_EQ(platform.console.lines,
        (std::vector<std::string>{"Fail__ no folder /Resources/Products", "Fail__ The folder “Products” doesn’t exist.",
            "Fail__ no folder /Resources/Products/a"}));
}

TEST_F(AppSettingsTest, asksTheDesktopForWhatTheAlertsOffer)
{
    settings->logDetailsStr = "line\nline";
    settings->copyLogDetails();
    EXPECT_EQ(platform.pasteboard.clearings, 1);
    EXPECT_EQ(platform.pasteboard.contents, "line\nline");
    settings->openAutomationSettings();
    EXPECT_EQ(platform.workspace.urls,
        std::vector<std::string>{"x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"});
}

} // namespace
} // namespace corvellane
