#include "ui/PageTexts.h"

#include <array>

namespace corvellane {
namespace {

struct PageTexts {
    const char* label;
    const char* title;
};

constexpr std::array<PageTexts, allPages.size()> pageTexts{{
    {"Introduction", "Welcome to the Corvellane Plugin Installer"},
    {"License", "Software License Agreement"},
    {"Products", "Select Products to install"},
    {"Selected Products", "The following Products will be installed"},
    {"Summary", ""},
}};

} // namespace

std::string sideBarLabel(Page page)
{
    return pageTexts.at(static_cast<std::size_t>(rawValue(page))).label;
}

std::string pageTitle(Page page)
{
    return pageTexts.at(static_cast<std::size_t>(rawValue(page))).title;
}

} // namespace corvellane
