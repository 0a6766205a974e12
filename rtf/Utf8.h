#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace corvellane::rtf {

constexpr char32_t replacementCharacter = 0xFFFD;

/// The most bytes that a code point takes.
constexpr std::size_t longestUtf8 = 4;

/// Writes a code point as UTF-8 and gives the number of bytes; U+FFFD in place of a surrogate or of what lies beyond
/// U+10FFFF.
inline std::size_t writeUtf8(char* to, char32_t code)
{
    if ((code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF) {
        code = replacementCharacter;
    }
    const auto trail = [&](unsigned shift) { return static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80) {
        to[0] = static_cast<char>(code);
        return 1;
    }
    if (code < 0x800) {
        to[0] = static_cast<char>(0xC0U | (code >> 6U));
        to[1] = trail(0);
        return 2;
    }
    if (code < 0x10000) {
        to[0] = static_cast<char>(0xE0U | (code >> 12U));
        to[1] = trail(6);
        to[2] = trail(0);
        return 3;
    }
    to[0] = static_cast<char>(0xF0U | (code >> 18U));
    to[1] = trail(12);
    to[2] = trail(6);
    to[3] = trail(0);
    return 4;
}

inline void appendUtf8(std::string& out, char32_t code)
{
    std::array<char, longestUtf8> bytes;
    out.append(bytes.data(), writeUtf8(bytes.data(), code));
}

/// Whether what is above 0x7F in the bytes is UTF-8 (RFC 3629), two characters of it at least.
bool isUtf8Text(std::string_view bytes);

/// Which of the two bytes of a unit of UTF-16 is the high one, by the byte order mark before it; none without a mark.
std::optional<std::size_t> highByteOfUtf16(std::string_view bytes);

/// UTF-16 in that order of bytes as UTF-8; unpaired surrogates as U+FFFD.
std::string fromUtf16(std::string_view bytes, std::size_t highByte);

} // namespace corvellane::rtf
