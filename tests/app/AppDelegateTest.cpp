#include "app/AppDelegate.h"

#include "tests/FakePlatform.h"

#include <gtest/gtest.h>

namespace corvellane {
namespace {

using Titles = std::vector<std::string>;

TEST(AppDelegate, takesTheFirstOfEachUnusedTitleOutOfTheMainMenu)
{
    const std::vector<std::pair<Titles, Titles>> rows{
        {{"Installer", "File", "Edit", "View", "Window"}, {"Installer", "Window"}},
        {{"Installer", "Edit", "File", "Edit"}, {"Installer", "Edit"}},
        {{"View", "Edit", "File"}, {}},
        {{"file", "FILE", "Files", " File", "Edit "}, {"file", "FILE", "Files", " File", "Edit "}},
        {{}, {}},
    };
    for (const auto& [before, after] : rows) {
        FakeApplication application;
        application.menu.emplace().titles = before;
        AppDelegate::applicationDidFinishLaunching(application);
        EXPECT_EQ(application.menu->titles, after) << testing::PrintToString(before);
    }
}

TEST(AppDelegate, launchesWithoutAMainMenuAndEndsWithTheLastWindow)
{
    FakeApplication application;
    AppDelegate::applicationDidFinishLaunching(application);
    EXPECT_TRUE(AppDelegate::applicationShouldTerminateAfterLastWindowClosed(application));
}

} // namespace
} // namespace corvellane
