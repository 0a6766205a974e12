#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace corvellane::rtf {

/// Which bytes a scan goes over.
enum class TextBytes : bool { all, ascii };

/// True for a byte that RTF takes as text: no control character but the tab, no backslash, no brace.
template <TextBytes Kind>
constexpr bool isTextByte(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return (code >= 0x20 || byte == '\t') && byte != '\\' && byte != '{' && byte != '}'
        && (Kind == TextBytes::all || code < 0x80);
}

/// True when eight bytes, in any order, are all text. A false answer may be wrong.
template <TextBytes Kind>
constexpr bool isTextWord(std::uint64_t word)
{
    constexpr std::uint64_t ones = 0x0101010101010101U;
    constexpr std::uint64_t highs = 0x8080808080808080U;
    const auto holds = [](std::uint64_t bytes, std::uint64_t wanted) {
        const std::uint64_t zeroWhereEqual = bytes ^ (ones * wanted);
        return (zeroWhereEqual - ones) & ~zeroWhereEqual;
    };
    const std::uint64_t controls = (word - ones * 0x20) & ~word;
    const std::uint64_t above = Kind == TextBytes::ascii ? word : 0;
    return ((above | controls | holds(word, '\\') | holds(word, '{') | holds(word, '}')) & highs) == 0;
}

/// How many bytes at the beginning are text.
template <TextBytes Kind>
std::size_t textLength(std::string_view bytes)
{
    std::size_t length = 0;
    while (length < bytes.size()) {
        std::uint64_t word = 0;
        if (length + sizeof word <= bytes.size()) {
            std::memcpy(&word, bytes.data() + length, sizeof word);
            if (isTextWord<Kind>(word)) {
                length += sizeof word;
                continue;
            }
        }
        for (const std::size_t end = std::min(length + sizeof word, bytes.size()); length < end; ++length) {
            if (!isTextByte<Kind>(bytes[length])) {
                return length;
            }
        }
    }
    return length;
}

} // namespace corvellane::rtf
