#pragma once

#include "rtf/ByteScan.h"
#include "rtf/ControlWords.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane::rtf {

/// One piece of RTF (RTF 1.9.1, "RTF Syntax").
struct Token {
    enum class Kind : std::uint8_t {
        end,
        open,
        close,
        /// A control word: `text` is its name, `parameter` its number.
        word,
        /// Several control words: Lexer::run().
        run,
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
    /// What a control word is to the reader.
    const ControlWord* word = nullptr;
    /// The data behind \bin.
    std::string_view data;

    std::int32_t parameterOr(std::int32_t absent) const { return hasParameter ? parameter : absent; }
};

/// Cuts RTF into tokens that point into the given bytes, or for bytes in hexadecimal into the lexer. Line ends and
/// control characters in the text are left out, as are hexadecimal bytes without their digits, and all that follows the
/// last closing brace.
class Lexer {
public:
    explicit Lexer(std::string_view bytes)
        : next_(bytes.data())
        , end_(bytes.data() + (bytes.rfind('}') + 1))
    {
    }

    /// The next token; it changes with the next call.
    const Token& next();

    /// The control words of a run, which begins with the defaults of a paragraph or a row. One after the other repeats
    /// what it is told: the last runs are known by their bytes. A name may be gone with the bytes it stood in.
    const std::vector<Token>& run() const { return runs_[run_].words; }

    /// What is left to cut, and the same bytes at another place, from where it goes on. Tokens may not be looked at any
    /// more.
    std::string_view rest() const { return {next_, end_}; }
    void moveTo(std::string_view rest)
    {
        next_ = rest.data();
        end_ = rest.data() + rest.size();
    }

    /// Steps over the mark of a group that may be passed over (\*), where it stands next; false where it does not.
    bool takeOptionalMark();

    /// A control word that the reader knows stands next.
    bool isAtKnownWord();

    /// What the byte after a raw lead byte of a two-byte character would be, taken as its trail byte although it
    /// means something else to RTF; -1 for a byte that is to be read as RTF. Moves nothing.
    int peekTrailByte() const;

    /// Steps over the byte that peekTrailByte() gave.
    void skipByte() { ++next_; }

private:
    struct Run {
        /// What it is known by; empty for nothing.
        std::string bytes;
        std::size_t length = 0;
        std::vector<Token> words;
    };

    bool lexControl();
    bool lexNoWord();
    void lexRun();
    void lexNewRun(Run& run);
    void lexText();
    void lexWord(const LeadingLetters& name);
    const char* lexParameter(const char* next);
    const char* lexNegative(const char* next);
    void skipNoText();
    static std::size_t rawLength(const char* begin, const char* end);
    bool lexBytes();
    void skipBrokenByte();
    void lexData();

    const char* next_;
    /// A closing brace stands before the end, which ends whatever else is looked at.
    const char* end_;
    Token token_;
    std::array<char, 256> hexBytes_{};
    std::array<Run, 16> runs_;
    /// The run of the last token.
    std::size_t run_ = 0;
    std::size_t oldestRun_ = 0;
};

inline const Token& Lexer::next()
{
    while (next_ != end_) {
        const char byte = *next_;
        if (byte == '\\') {
            if (lexControl()) {
                return token_;
            }
        } else if (byte == '{' || byte == '}') {
            token_.kind = byte == '{' ? Token::Kind::open : Token::Kind::close;
            ++next_;
            return token_;
        } else if (isTextByte<TextBytes::all>[static_cast<unsigned char>(byte)]) {
            lexText();
            return token_;
        } else {
            ++next_;
        }
    }
    token_.kind = Token::Kind::end;
    return token_;
}

/// Stands on a byte that is text. Of long text several tokens are made, between which what is read can be given back.
inline void Lexer::lexText()
{
    constexpr std::ptrdiff_t longest = 1 << 17;
    const char* const end = end_ - next_ > longest ? next_ + longest : end_;
    const std::size_t length = textLength<TextBytes::ascii>({next_, end});
    token_.kind = Token::Kind::text;
    token_.ascii = static_cast<unsigned char>(next_[length]) < 0x80;
    token_.text = {next_, token_.ascii ? length : length + rawLength(next_ + length, end)};
    next_ += token_.text.size();
}

/// False when what stood there means nothing.
inline bool Lexer::lexControl()
{
    ++next_;
    const LeadingLetters name = leadingLetters(next_, end_);
    if (name.length == 0) {
        return lexNoWord();
    }
    const bool beginsRun = name.code == codeOfName("pard") || name.code == codeOfName("trowd");
    beginsRun ? lexRun() : lexWord(name);
    return true;
}

inline void Lexer::lexWord(const LeadingLetters& name)
{
    token_.kind = Token::Kind::word;
    token_.text = {next_, name.length};
    token_.word = &findControlWord(name.code);
    const char* const next = lexParameter(next_ + name.length);
    next_ = next + (*next == ' ' ? 1 : 0);
    if (name.code == codeOfName("bin")) [[unlikely]] {
        lexData();
    }
}

/// Gives what follows. A number wider than 32 bits keeps its low 32.
inline const char* Lexer::lexParameter(const char* next)
{
    const auto digit = [](char byte) { return static_cast<unsigned>(byte) - '0'; };
    std::uint32_t number = digit(*next);
    if (number > 9) {
        return lexNegative(next);
    }
    for (++next; digit(*next) <= 9; ++next) {
        number = number * 10 + digit(*next);
    }
    token_.hasParameter = true;
    token_.parameter = static_cast<std::int32_t>(number);
    return next;
}

/// The same where no digit stands: a number below zero, or none.
inline const char* Lexer::lexNegative(const char* next)
{
    if (*next == '-' && next[1] >= '0' && next[1] <= '9') {
        next = lexParameter(next + 1);
        token_.parameter = static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(token_.parameter));
        return next;
    }
    token_.hasParameter = false;
    token_.parameter = 0;
    return next;
}

} // namespace corvellane::rtf
