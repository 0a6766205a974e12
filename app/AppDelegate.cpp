#include "app/AppDelegate.h"

#include "platform/Application.h"
#include "platform/Menu.h"

#include <algorithm>
#include <string_view>

namespace corvellane {

namespace {

void removeFirstItemTitled(Menu& menu, std::string_view title)
{
    const std::vector<std::string> titles = menu.itemTitles();
    const auto found = std::ranges::find(titles, title);
    if (found != titles.end()) {
        menu.removeItem(static_cast<std::size_t>(found - titles.begin()));
    }
}

} // namespace

void AppDelegate::applicationDidFinishLaunching(Application& application)
{
    Menu* const menu = application.mainMenu();
    if (menu == nullptr) {
        return;
    }
    for (const char* const title : {"File", "Edit", "View"}) {
        removeFirstItemTitled(*menu, title);
    }
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed(const Application&)
{
    return true;
}

} // namespace corvellane
