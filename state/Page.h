#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace corvellane {

/// The wizard's pages, numbered in their order.
enum class Page {
    intro = 0,
    license = 1,
    products = 2,
    install = 3,
    summary = 4,
};

constexpr std::array allPages{Page::intro, Page::license, Page::products, Page::install, Page::summary};

constexpr int rawValue(Page page)
{
    return static_cast<int>(page);
}

constexpr std::string_view nameOf(Page page)
{
    constexpr std::array<std::string_view, allPages.size()> names{"intro", "license", "products", "install", "summary"};
    return names[static_cast<std::size_t>(page)];
}

/// Absent when no page has this number.
constexpr std::optional<Page> pageFromRawValue(int value)
{
    if (value < rawValue(allPages.front()) || value > rawValue(allPages.back())) {
        return std::nullopt;
    }
    return static_cast<Page>(value);
}

} // namespace corvellane
