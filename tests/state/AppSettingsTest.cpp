#include "tests/state/StateTest.h"

namespace corvellane {
namespace {

using testing::ElementsAre;

TEST_F(StateTest, turnsItsPagesAndRaisesItsAlerts)
{
    expectSteps({
        {&AppSettings::goBack, {"now intro"}},
        {&AppSettings::nextAction, {"change intro", "now license"}},
        {&AppSettings::nextAction, {"change license", "now license licenseAlert"}},
        {&AppSettings::closeLicenseAlert, {"change license licenseAlert", "now license"}},
        {&AppSettings::nextAction, {"change license", "now license licenseAlert"}},
        {&AppSettings::agreeWithLicense,
            {"change license licenseAlert", "change license agreed licenseAlert", "now products agreed licenseAlert"}},
        {&AppSettings::goBack, {"change products agreed licenseAlert", "now license agreed licenseAlert"}},
        {&AppSettings::nextAction, {"change license agreed licenseAlert", "now products agreed licenseAlert"}},
        {&AppSettings::closeLicenseAlert, {"change products agreed licenseAlert", "now products agreed"}},
        {&AppSettings::nextAction, {"change products agreed", "now install agreed"}},
        {&AppSettings::nextAction, {"change install agreed", "now install agreed permanentlyAlert"}},
        {&AppSettings::closeInstallConfirmation, {"change install agreed permanentlyAlert", "now install agreed"}},
        {&AppSettings::goBack, {"change install agreed", "now products agreed"}},
    });
}

TEST_F(StateTest, servesTheButtonsOfTheSummaryAndItsPanel)
{
    settings->currentPage.set(Page::summary);
    settings->logDetailsStr = std::string("gone");
    expectSteps({
        {&AppSettings::toggleLogDetails, {"change summary log gone", "now summary logWindow log gone"}},
        {&AppSettings::copyLogDetails, {"clear the pasteboard", "paste gone", "now summary logWindow log gone"}},
        {&AppSettings::toggleLogDetails, {"change summary logWindow log gone", "now summary log gone"}},
        {&AppSettings::openAutomationSettings,
            {"open x-apple.systempreferences:com.apple.preference.security?Privacy_Automation",
                "now summary log gone"}},
        {&AppSettings::nextAction, {"terminate", "now summary log gone"}},
        {&AppSettings::terminateApp, {"terminate", "now summary log gone"}},
    });
}

TEST_F(StateTest, findsTheFoldersOfTheProductsFolderAndTicksThem)
{
    platform.addProduct("b", {"b.plugin"});
    platform.addProduct("A", {});
    platform.files.folders["/Resources/Products"]["ReadMe.txt"] = false;
    platform.files.folders["/Resources/Products"]["unknown"] = std::nullopt;
    expectSteps({
        {&AppSettings::selectAll, {"change intro", "now intro"}},
        {&AppSettings::refreshProducts,
            {"change intro", "list /Resources/Products", "change intro", "now intro +A +b"}},
        {&AppSettings::refreshProducts,
            {"change intro +A +b", "list /Resources/Products", "change intro", "now intro +A +b"}},
    });
    const auto toggle = [&](const char* product) { return after(&AppSettings::toggleProduct, product); };
    EXPECT_THAT(toggle("/Resources/Products/b"), ElementsAre("change intro +A +b", "now intro +A -b"));
    EXPECT_TRUE(settings->selectedExist());
    EXPECT_THAT(toggle("/Resources/Products/A"), ElementsAre("change intro +A -b", "now intro -A -b"));
    EXPECT_FALSE(settings->selectedExist());
    EXPECT_THAT(toggle("/new"), ElementsAre("change intro -A -b", "now intro -A -b +new"));
    EXPECT_THAT(after(&AppSettings::selectAll), ElementsAre("change intro -A -b +new", "now intro +A +b +new"));
}

TEST_F(StateTest, saysWhatItCannotListAndGoesOn)
{
    EXPECT_THAT(after(&AppSettings::refreshProducts),
        ElementsAre("change intro", "list /Resources/Products", "print Fail__ no folder /Resources/Products",
            "change intro", "now intro"));
    platform.resources.hasFolder = false;
    EXPECT_THAT(after(&AppSettings::refreshProducts),
        ElementsAre("change intro", "print Fail__ The folder “Products” doesn’t exist.", "change intro", "now intro"));
    platform.resources.hasFolder = true;
    for (const char* name : {"a", "b", "c", "d"}) {
        platform.addProduct(name, {std::string(name) + ".plugin"});
    }
    platform.files.folders["/Resources/Products/a"]["notes.txt"] = false;
    settings->refreshProducts();
    settings->toggleProduct("/Resources/Products/d");
    platform.files.folders.erase("/Resources/Products/b");
    platform.journal.clear();
    EXPECT_THAT(
        settings->elementsToCopy(), ElementsAre("/Resources/Products/a/a.plugin", "/Resources/Products/c/c.plugin"));
    EXPECT_THAT(platform.journal,
        ElementsAre("list /Resources/Products/a", "list /Resources/Products/b",
            "print Fail__ no folder /Resources/Products/b", "list /Resources/Products/c"));
}

} // namespace
} // namespace corvellane
