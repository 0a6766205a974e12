#pragma once

#include "base/Enumerators.h"

#include <array>
#include <optional>
#include <string_view>

namespace corvellane {

/// The wizard's pages, numbered from 0 in their order.
enum class Page { intro, license, products, install, summary };

/// What a page is called in the program and in the side bar, and the title over it, which may be empty.
struct PageTexts {
    std::string_view name;
    std::string_view label;
    std::string_view title;
};

/// Empty texts for what is no page.
constexpr PageTexts textsOf(Page page)
{
    switch (page) {
    case Page::intro:
        return {"intro", "Introduction", "Welcome to the Corvellane Plugin Installer"};
    case Page::license:
        return {"license", "License", "Software License Agreement"};
    case Page::products:
        return {"products", "Products", "Select Products to install"};
    case Page::install:
        return {"install", "Selected Products", "The following Products will be installed"};
    case Page::summary:
        return {"summary", "Summary", ""};
    }
    return {};
}

constexpr std::string_view nameOf(Page page)
{
    return textsOf(page).name;
}

constexpr std::string_view sideBarLabel(Page page)
{
    return textsOf(page).label;
}

constexpr std::string_view pageTitle(Page page)
{
    return textsOf(page).title;
}

constexpr int rawValue(Page page)
{
    return static_cast<int>(page);
}

constexpr std::array allPages = enumerators<Page, nameOf>;

/// Absent when no page has this number.
constexpr std::optional<Page> pageFromRawValue(int value)
{
    const auto page = static_cast<Page>(value);
    return nameOf(page).empty() ? std::nullopt : std::optional(page);
}

} // namespace corvellane
