#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvellane::rtf {

/// One piece of RTF (RTF 1.9.1, "RTF Syntax").
struct Token {
    enum class Kind : std::uint8_t {
        end,
        open,
        close,
        /// A control word: `text` is its name, `parameter` its number.
        word,
        /// A control symbol: `text` is the character after the backslash, a line feed for any line end.
        symbol,
        /// Bytes of text that are written as two hexadecimal digits each: `text`, until the next token is asked for.
        bytes,
        /// Raw bytes of text, tabs included.
        text,
    };

    Kind kind = Kind::end;
    /// Text alone: no byte of it is above 0x7F.
    bool ascii = false;
    bool hasParameter = false;
    /// 0 where there is none.
    std::int32_t parameter = 0;
    std::string_view text;
    /// The data behind \bin.
    std::string_view data;

    std::int32_t parameterOr(std::int32_t absent) const { return hasParameter ? parameter : absent; }
};

/// Cuts RTF into tokens that point into the given bytes, or for bytes in hexadecimal into the lexer. Line ends and
/// control characters in the text are left out, as are hexadecimal bytes without their digits.
class Lexer {
public:
    explicit Lexer(std::string_view bytes)
        : bytes_(bytes)
    {
    }

    /// The next token; it changes with the next call.
    const Token& next();

    /// What the byte after a raw lead byte of a two-byte character would be, taken as its trail byte although it
    /// means something else to RTF; -1 for a byte that is to be read as RTF. Moves nothing.
    int peekTrailByte() const;

    /// Steps over the byte that peekTrailByte() gave.
    void skipByte() { ++position_; }

private:
    bool lexToken();
    bool lexControl();
    bool lexText();
    void lexWord();
    void lexSymbol();
    bool lexBytes();
    int hexByteAt(std::size_t position) const;
    void lexParameter();
    void lexData();
    bool at(std::size_t offset, char wanted) const;

    std::string_view bytes_;
    std::size_t position_ = 0;
    Token token_;
    std::array<char, 256> hexBytes_{};
};

} // namespace corvellane::rtf
