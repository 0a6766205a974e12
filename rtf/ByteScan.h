#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace corvellane::rtf {

/// Which bytes a scan goes over.
enum class TextBytes : bool { all, ascii };

/// By its code, whether RTF takes a byte as text: no control character but the tab, no backslash, no brace.
template <TextBytes Kind>
constexpr auto isTextByte = [] {
    std::array<bool, 256> isText{};
    std::fill(isText.begin() + ' ', Kind == TextBytes::all ? isText.end() : isText.begin() + 0x80, true);
    isText['\t'] = true;
    isText['\\'] = isText['{'] = isText['}'] = false;
    return isText;
}();

/// How many bytes at the beginning are text.
template <TextBytes Kind>
std::size_t textLength(std::string_view bytes)
{
    const auto isText = [](char byte) { return isTextByte<Kind>[static_cast<unsigned char>(byte)]; };
    return static_cast<std::size_t>(std::ranges::find_if_not(bytes, isText) - bytes.begin());
}

} // namespace corvellane::rtf
