#include "agreement/RtfLexer.h"

#include "agreement/ByteScan.h"
#include "agreement/RtfControlWords.h"

#include <algorithm>

namespace corvellane {
namespace {

bool isLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

int hexDigit(char byte)
{
    if (isDigit(byte)) {
        return byte - '0';
    }
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

bool startsKnownWord(std::string_view bytes)
{
    std::size_t length = 0;
    while (length < bytes.size() && isLetter(bytes[length])) {
        ++length;
    }
    return findControlWord(bytes.substr(0, length)) != nullptr;
}

} // namespace

bool RtfLexer::at(std::size_t offset, char wanted) const
{
    return offset < bytes_.size() - position_ && bytes_[position_ + offset] == wanted;
}

RtfToken RtfLexer::next()
{
    while (position_ < bytes_.size()) {
        const char byte = bytes_[position_];
        if (byte == '\\') {
            const RtfToken token = lexControl();
            if (token.kind != RtfToken::Kind::end) {
                return token;
            }
        } else if (byte == '{' || byte == '}') {
            ++position_;
            return {.kind = byte == '{' ? RtfToken::Kind::open : RtfToken::Kind::close};
        } else if (isRtfText(byte)) {
            return lexText();
        } else {
            ++position_;
        }
    }
    return {};
}

RtfToken RtfLexer::lexText()
{
    const std::string_view rest = bytes_.substr(position_);
    const std::size_t asciiLength = textLength<TextBytes::ascii>(rest);
    const std::size_t length = asciiLength + textLength<TextBytes::all>(rest.substr(asciiLength));
    position_ += length;
    return {.kind = RtfToken::Kind::text, .ascii = length == asciiLength, .text = rest.substr(0, length)};
}

/// A token of kind `end` stands for a control that means nothing.
RtfToken RtfLexer::lexControl()
{
    ++position_;
    if (position_ == bytes_.size()) {
        return {};
    }
    if (isLetter(bytes_[position_])) {
        return lexWord();
    }
    return bytes_[position_] == '\'' ? lexByte() : lexSymbol();
}

RtfToken RtfLexer::lexWord()
{
    RtfToken token{.kind = RtfToken::Kind::word};
    const std::size_t begin = position_;
    while (position_ < bytes_.size() && isLetter(bytes_[position_])) {
        ++position_;
    }
    token.text = bytes_.substr(begin, position_ - begin);
    lexParameter(token);
    if (at(0, ' ')) {
        ++position_;
    }
    if (token.text == "bin") {
        skipBinary(token);
    }
    return token;
}

/// A number wider than 32 bits keeps its low 32.
void RtfLexer::lexParameter(RtfToken& token)
{
    const std::size_t sign = at(0, '-') ? 1 : 0;
    if (position_ + sign >= bytes_.size() || !isDigit(bytes_[position_ + sign])) {
        return;
    }
    position_ += sign;
    std::uint32_t number = 0;
    for (; position_ < bytes_.size() && isDigit(bytes_[position_]); ++position_) {
        number = number * 10 + static_cast<std::uint32_t>(bytes_[position_] - '0');
    }
    token.hasParameter = true;
    token.parameter = static_cast<std::int32_t>(sign != 0 ? 0U - number : number);
}

void RtfLexer::skipBinary(const RtfToken& token)
{
    const auto length = static_cast<std::size_t>(std::max(token.parameter, 0));
    position_ += std::min(length, bytes_.size() - position_);
}

RtfToken RtfLexer::lexSymbol()
{
    RtfToken token{.kind = RtfToken::Kind::symbol, .text = bytes_.substr(position_, 1)};
    if (at(0, '\r')) {
        position_ += at(1, '\n') ? 1 : 0;
        token.text = "\n";
    }
    ++position_;
    return token;
}

RtfToken RtfLexer::lexByte()
{
    ++position_;
    int value = 0;
    int digits = 0;
    for (; digits < 2 && position_ < bytes_.size() && hexDigit(bytes_[position_]) >= 0; ++digits, ++position_) {
        value = value * 16 + hexDigit(bytes_[position_]);
    }
    return digits < 2 ? RtfToken{} : RtfToken{.kind = RtfToken::Kind::byte, .parameter = value};
}

/// Writers that know the code page leave a trail byte bare; others put a backslash before it or write it in
/// hexadecimal. After two backslashes only what follows can tell: a control word, or text.
int RtfLexer::peekTrailByte() const
{
    if (at(0, '{') || at(0, '}')) {
        return bytes_[position_];
    }
    const bool written = at(1, '\'') || (at(1, '\\') && !startsKnownWord(bytes_.substr(position_ + 2)));
    return at(0, '\\') && !written ? '\\' : -1;
}

} // namespace corvellane
