#include "app/AppDelegate.h"

#include "tests/FakePlatform.h"

#include <gtest/gtest.h>

namespace corvellane {
namespace {

using Titles = std::vector<std::string>;

TEST(AppDelegate, takesTheFirstOfEachUnusedTitleOutOfTheMainMenu)
{
    struct Row {
        Titles before;
        Titles after;
    };
    const std::vector<Row> rows{
        {{"Installer", "File", "Edit", "View", "Window"}, {"Installer", "Window"}},
        {{"Installer", "Edit", "File", "Edit"}, {"Installer", "Edit"}},
        {{"Edit", "View"}, {}},
        {{"View", "Edit", "File"}, {}},
        {{"file", "FILE", "Files", " File", "Edit "}, {"file", "FILE", "Files", " File", "Edit "}},
        {{}, {}},
    };
    for (const Row& row : rows) {
        FakeApplication application;
        application.menu.emplace().titles = row.before;
        AppDelegate::applicationDidFinishLaunching(application);
        EXPECT_EQ(application.menu->titles, row.after) << testing::PrintToString(row.before);
    }
}

TEST(AppDelegate, launchesWithoutAMainMenuAndEndsWithTheLastWindow)
{
    FakeApplication application;
    AppDelegate::applicationDidFinishLaunching(application);
    EXPECT_TRUE(AppDelegate::applicationShouldTerminateAfterLastWindowClosed(application));
    EXPECT_EQ(application.terminations, 0);
}

} // namespace
} // namespace corvellane
