#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace corvellane {

/// True for a byte that RTF takes as text: no control character but the tab, no backslash, no brace.
constexpr bool isRtfText(char byte)
{
    return (static_cast<unsigned char>(byte) >= 0x20 || byte == '\t') && byte != '\\' && byte != '{' && byte != '}';
}

constexpr bool isAsciiText(char byte)
{
    return isRtfText(byte) && static_cast<unsigned char>(byte) < 0x80;
}

/// True when eight bytes, in any order, are all printable ASCII other than the backslash and the braces. A false
/// answer may be wrong for a tab.
constexpr bool isPlainWord(std::uint64_t word)
{
    constexpr std::uint64_t ones = 0x0101010101010101U;
    constexpr std::uint64_t highs = 0x8080808080808080U;
    const auto holds = [](std::uint64_t bytes, std::uint64_t wanted) {
        const std::uint64_t zeroWhereEqual = bytes ^ (ones * wanted);
        return (zeroWhereEqual - ones) & ~zeroWhereEqual;
    };
    const std::uint64_t controls = (word - ones * 0x20) & ~word;
    return ((word | controls | holds(word, '\\') | holds(word, '{') | holds(word, '}')) & highs) == 0;
}

/// How many bytes at the beginning are ASCII text.
inline std::size_t asciiTextLength(std::string_view bytes)
{
    std::size_t length = 0;
    for (std::uint64_t word = 0; length + sizeof word <= bytes.size(); length += sizeof word) {
        std::memcpy(&word, bytes.data() + length, sizeof word);
        if (!isPlainWord(word)) {
            break;
        }
    }
    while (length < bytes.size() && isAsciiText(bytes[length])) {
        ++length;
    }
    return length;
}

} // namespace corvellane
