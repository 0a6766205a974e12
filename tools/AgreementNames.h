#pragma once

#include "rtf/AttributedText.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace corvellane {

/// What the JSON calls each enumerator in their order; nothing for what goes without saying.
template <typename Kind>
inline constexpr auto names = std::array<std::string_view, 0>();
template <>
inline constexpr auto names<rtf::Alignment>
    = std::to_array<std::string_view>({"", "left", "right", "centre", "justified"});
template <>
inline constexpr auto names<rtf::LineHeight::Kind>
    = std::to_array<std::string_view>({"", "multiple", "atLeast", "exactly"});
template <>
inline constexpr auto names<rtf::TabKind> = std::to_array<std::string_view>({"left", "centre", "right", "decimal"});
template <>
inline constexpr auto names<rtf::TabLeader> = std::to_array<std::string_view>({"", "dots", "hyphens", "line"});
template <>
inline constexpr auto names<rtf::Direction> = std::to_array<std::string_view>({"", "leftToRight", "rightToLeft"});
template <>
inline constexpr auto names<rtf::LineStyle>
    = std::to_array<std::string_view>({"", "solid", "double", "dotted", "dashed"});
template <>
inline constexpr auto names<rtf::Underline> = std::to_array<std::string_view>(
    {"", "", "double", "dotted", "dashed", "dashDotted", "dashDotDotted", "waved", "thick", "words"});
template <>
inline constexpr auto names<rtf::CellAlignment> = std::to_array<std::string_view>({"", "centre", "bottom"});
template <>
inline constexpr auto names<rtf::CellMerge> = std::to_array<std::string_view>({"", "first", "continued"});
template <>
inline constexpr auto names<rtf::Picture::Kind> = std::to_array<std::string_view>({"png", "jpeg", "bitmap"});
template <>
inline constexpr auto names<rtf::VerticalPosition> = std::to_array<std::string_view>({"", "super", "sub"});
template <>
inline constexpr auto names<rtf::FontClass>
    = std::to_array<std::string_view>({"", "serif", "sans", "fixed", "script", "decorative"});
template <>
inline constexpr auto names<rtf::FontLanguage>
    = std::to_array<std::string_view>({"", "japanese", "simplifiedChinese", "traditionalChinese", "korean"});
template <>
inline constexpr auto names<rtf::Capitals> = std::to_array<std::string_view>({"", "small", "all"});

/// Compilers write a value that no enumerator has as a number behind its type in brackets.
template <auto Value>
constexpr bool isEnumerator()
{
    return std::string_view(__PRETTY_FUNCTION__).find("Value = (") == std::string_view::npos;
}

template <typename Kind>
std::string_view nameOf(Kind kind)
{
    constexpr std::size_t count = names<Kind>.size();
    static_assert(isEnumerator<static_cast<Kind>(count - 1)>() && !isEnumerator<static_cast<Kind>(count)>());
    return names<Kind>.at(static_cast<std::size_t>(kind));
}

} // namespace corvellane
