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

TEST_F(AppSettingsTest, announcesEveryWriteOnceAndTheLogNever)
{
    EXPECT_EQ(signalsOf([&] { settings->showLicenseAlert.set(false); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->toggleLogDetails(); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->logDetailsStr = std::string("text"); }), 0);
    EXPECT_EQ(signalsOf([&] { settings->refreshProducts(); }), 2);
    EXPECT_EQ(signalsOf([&] { settings->selectAll(); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->toggleProduct("/a"); }), 1);
    EXPECT_EQ(signalsOf([&] { settings->goBack(); }), 0) << "nothing comes before the first page";
    EXPECT_EQ(signalsOf([&] { settings->agreeWithLicense(); }), 2);
}

TEST_F(AppSettingsTest, findsTheFoldersOfTheProductsFolderAndTicksThem)
{
    platform.addProduct("b", {"b.plugin"});
    platform.addProduct("A", {});
    platform.files.folders["/Resources/Products"]["ReadMe.txt"] = false;
    platform.files.folders["/Resources/Products"]["unknown"] = std::nullopt;
    platform.files.folders["/Resources/Products/b"]["notes.txt"] = false;
    settings->refreshProducts();
    EXPECT_EQ(settings->products.get(), ProductSelection({"/Resources/Products/b", "/Resources/Products/A"}));
    EXPECT_EQ(settings->elementsToCopy(), std::vector<std::string>{"/Resources/Products/b/b.plugin"});
    settings->toggleProduct("/Resources/Products/b");
    EXPECT_TRUE(settings->selectedExist());
    EXPECT_TRUE(settings->elementsToCopy().empty());
    settings->toggleProduct("/Resources/Products/A");
    EXPECT_FALSE(settings->selectedExist());
    settings->selectAll();
    EXPECT_TRUE(settings->products.get().isTicked("/Resources/Products/b"));
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

} // namespace
} // namespace corvellane
