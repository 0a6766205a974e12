#pragma once

#include "rtf/CodePage.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace corvellane::rtf {

/// Turns bytes of code pages and UTF-16 units, as they come, into UTF-8 at the end of a text. What is not yet whole
/// stands there as U+FFFD until the rest of it comes, and for good when that never comes. A line feed in hexadecimal is
/// U+2028.
class TextDecoder {
public:
    /// Bytes that begin a character in their own page and never end it are read in this one; null for none. It outlives
    /// its use.
    void setSubstitute(const CodePage* page) { substitute_ = page; }

    void appendBytes(std::string_view bytes, CodePage& page, std::string& out);
    void appendByte(char byte, CodePage& page, std::string& out);

    /// `code` is a code point or a surrogate.
    void appendUnit(char32_t code, std::string& out);

    /// True when the last byte may be followed by a trail byte.
    bool awaitsTrail() const { return leadLength_ != 0; }

    /// True when `byte` makes a whole character with the lead bytes at the end of `out`.
    bool completesCharacter(char byte, CodePage& page, const std::string& out);

    /// What comes next continues no multi-byte character.
    void breakBytes() { leadLength_ = 0; }

    /// What comes next continues nothing.
    void breakText()
    {
        leadLength_ = 0;
        highSurrogate_ = 0;
    }

private:
    bool endsWithPending(const std::string& out) const { return pendingIn_ == &out && pendingEnd_ == out.size(); }
    static std::size_t appendCharacters(std::string_view bytes, CodePage& page, std::string& out);
    bool continueCharacter(char byte, CodePage& page, std::string& out);
    void appendSurrogate(char32_t code, std::string& out);
    void appendPending(std::string& out, char32_t code);
    char32_t loneCharacter(char byte) const;

    std::array<char, 4> lead_{};
    std::size_t leadLength_ = 0;
    char32_t highSurrogate_ = 0;
    const CodePage* substitute_ = nullptr;
    const std::string* pendingIn_ = nullptr;
    std::size_t pendingBegin_ = 0;
    std::size_t pendingEnd_ = 0;
};

} // namespace corvellane::rtf
