#pragma once

#include <string>

namespace corvellane {

constexpr char32_t replacementCharacter = 0xFFFD;

/// Appends a code point as UTF-8; U+FFFD in place of a surrogate or of what lies beyond U+10FFFF.
inline void appendUtf8(std::string& out, char32_t code)
{
    if ((code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF) {
        code = replacementCharacter;
    }
    const auto trail = [&](unsigned shift) { return static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80) {
        out.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        out.append({static_cast<char>(0xC0U | (code >> 6U)), trail(0)});
    } else if (code < 0x10000) {
        out.append({static_cast<char>(0xE0U | (code >> 12U)), trail(6), trail(0)});
    } else {
        out.append({static_cast<char>(0xF0U | (code >> 18U)), trail(12), trail(6), trail(0)});
    }
}

} // namespace corvellane
