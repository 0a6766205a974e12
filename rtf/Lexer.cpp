#include "rtf/Lexer.h"

#include "rtf/ByteScan.h"
#include "rtf/ControlWords.h"

#include <algorithm>
#include <utility>

namespace corvellane::rtf {
namespace {

/// In words, and in bytes what it is known by.
constexpr std::size_t longestRun = 64;
constexpr std::size_t longestRunBytes = 4096;

constexpr std::array<std::int8_t, 256> hexDigits = [] {
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (std::int8_t value = 0; value < 16; ++value) {
        values[static_cast<unsigned char>("0123456789abcdef"[value])] = value;
        values[static_cast<unsigned char>("0123456789ABCDEF"[value])] = value;
    }
    return values;
}();

int hexDigit(char byte)
{
    return hexDigits[static_cast<unsigned char>(byte)];
}

/// The byte that two digits stand for; -1 where there are none.
int hexByte(const char* digits)
{
    const int high = hexDigit(digits[0]);
    const int low = high < 0 ? -1 : hexDigit(digits[1]);
    return low < 0 ? -1 : (high * 16) + low;
}

bool isKnownWord(const char* next, const char* end)
{
    const std::uint64_t code = leadingLetters(next, end).code;
    return code != 0 && findControlWord(code).code != 0;
}

/// What could follow a backslash: a word that the reader knows, or a byte in hexadecimal.
bool startsControl(const char* next, const char* end)
{
    if (*next == '\'') {
        return hexByte(next + 1) >= 0;
    }
    return isKnownWord(next, end);
}

} // namespace

EightBytes lastBytes(const char* from, const char* end)
{
    EightBytes bytes = 0;
    for (const char* next = end; next != from;) {
        bytes = bytes << 8U | static_cast<unsigned char>(*--next);
    }
    return bytes;
}

LeadingLetters leadingLettersOfMany(EightBytes first, const char* next, const char* end)
{
    LeadingLetters name{.length = sizeof first, .code = first};
    while (true) {
        const EightBytes bytes = eightBytes(next + name.length, end);
        const EightBytes marks = markNoLetters(bytes);
        if (marks != 0) {
            name.add(keepBefore(marks, bytes), bytesBefore(marks));
            return name;
        }
        name.add(bytes, sizeof bytes);
    }
}

std::size_t Lexer::rawLength(const char* begin, const char* end)
{
    return textLength<TextBytes::all>({begin, end});
}

/// False when what stood there means nothing.
bool Lexer::lexNoWord()
{
    if (*next_ == '\'') {
        return lexBytes();
    }
    token_.kind = Token::Kind::symbol;
    token_.text = *next_ == '\r' ? "\n" : std::string_view(next_, 1);
    ++next_;
    return true;
}

/// Stands on the letters of the first word.
void Lexer::lexRun()
{
    const std::string_view rest(next_, end_);
    const auto isHere = [&](const Run& run) { return !run.bytes.empty() && rest.starts_with(run.bytes); };
    const auto* const known = std::ranges::find_if(runs_, isHere);
    if (known != runs_.end()) {
        run_ = static_cast<std::size_t>(known - runs_.begin());
        next_ += known->length;
    } else {
        run_ = std::exchange(oldestRun_, (oldestRun_ + 1) % runs_.size());
        lexNewRun(runs_[run_]);
    }
    token_.kind = Token::Kind::run;
}

/// A run ends before data. Where the last word runs on to the byte behind it, that belongs to what the run is known by;
/// but where it is a minus, what follows would tell more, and the run is not known again.
void Lexer::lexNewRun(Run& run)
{
    run.words.clear();
    const char* const begin = next_;
    LeadingLetters name = leadingLetters(next_, end_);
    for (bool goesOn = true; goesOn;) {
        lexWord(name);
        run.words.push_back(token_);
        skipNoText();
        name = *next_ == '\\' ? leadingLetters(next_ + 1, end_) : LeadingLetters();
        goesOn = name.length != 0 && name.code != codeOfName("bin") && run.words.size() < longestRun;
        next_ += goesOn ? 1 : 0;
    }
    run.length = static_cast<std::size_t>(next_ - begin);
    const bool isEnded = static_cast<unsigned char>(next_[-1]) <= ' ';
    const bool isKnownAgain = (isEnded || *next_ != '-') && run.length < longestRunBytes;
    run.bytes.assign(begin, isKnownAgain ? run.length + (isEnded ? 0 : 1) : 0);
}

void Lexer::lexData()
{
    token_.data = std::string_view(next_, end_).substr(0, static_cast<std::size_t>(std::max(token_.parameter, 0)));
    next_ += token_.data.size();
}

/// Stands on the apostrophe.
bool Lexer::lexBytes()
{
    std::size_t count = 0;
    for (int value = hexByte(next_ + 1); value >= 0; value = hexByte(next_ + 1)) {
        hexBytes_[count++] = static_cast<char>(value);
        next_ += 3;
        if (count == hexBytes_.size() || next_[0] != '\\' || next_[1] != '\'' || hexByte(next_ + 2) < 0) {
            token_.kind = Token::Kind::bytes;
            token_.text = {hexBytes_.data(), count};
            return true;
        }
        ++next_;
    }
    skipBrokenByte();
    return false;
}

/// Of a byte without its digits nothing is left, not even a single digit.
void Lexer::skipBrokenByte()
{
    ++next_;
    next_ += hexDigit(*next_) >= 0 ? 1 : 0;
}

void Lexer::skipNoText()
{
    while (static_cast<unsigned char>(*next_) < ' ' && *next_ != '\t') {
        ++next_;
    }
}

bool Lexer::takeOptionalMark()
{
    skipNoText();
    while (next_[0] == '\\' && next_[1] == '\'' && hexByte(next_ + 2) < 0) [[unlikely]] {
        ++next_;
        skipBrokenByte();
        skipNoText();
    }
    const bool isMark = std::string_view(next_, end_).starts_with("\\*");
    next_ += isMark ? 2 : 0;
    return isMark;
}

bool Lexer::isAtKnownWord()
{
    skipNoText();
    return *next_ == '\\' && isKnownWord(next_ + 1, end_);
}

/// Writers that know the code page leave a trail byte bare; others put a backslash before it or write it in
/// hexadecimal. After two backslashes only what follows can tell: a control, or text.
int Lexer::peekTrailByte() const
{
    if (next_ == end_ || *next_ == '{' || *next_ == '}') {
        return next_ == end_ ? -1 : *next_;
    }
    const bool written = next_[1] == '\'' || (next_[1] == '\\' && !startsControl(next_ + 2, end_));
    return *next_ == '\\' && !written ? '\\' : -1;
}

} // namespace corvellane::rtf
