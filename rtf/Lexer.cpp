#include "rtf/Lexer.h"

#include "rtf/ByteScan.h"
#include "rtf/ControlWords.h"

#include <algorithm>

namespace corvellane::rtf {
namespace {

bool isLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

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

std::string_view leadingLetters(std::string_view bytes)
{
    return {bytes.begin(), std::ranges::find_if_not(bytes, isLetter)};
}

/// What could follow a backslash: a word that the reader knows, or a byte in hexadecimal.
bool startsControl(std::string_view bytes)
{
    if (bytes.starts_with('\'')) {
        return bytes.size() > 2 && hexDigit(bytes[1]) >= 0 && hexDigit(bytes[2]) >= 0;
    }
    return findControlWord(leadingLetters(bytes)) != nullptr;
}

} // namespace

bool Lexer::at(std::size_t offset, char wanted) const
{
    return offset < bytes_.size() - position_ && bytes_[position_ + offset] == wanted;
}

const Token& Lexer::next()
{
    while (position_ < bytes_.size()) {
        if (lexToken()) {
            return token_;
        }
    }
    token_.kind = Token::Kind::end;
    return token_;
}

/// False when what stood there means nothing.
bool Lexer::lexToken()
{
    const char byte = bytes_[position_];
    if (byte == '\\') {
        return lexControl();
    }
    if (byte == '{' || byte == '}') {
        token_.kind = byte == '{' ? Token::Kind::open : Token::Kind::close;
        ++position_;
        return true;
    }
    return lexText();
}

/// Steps over a byte that is none of the text.
bool Lexer::lexText()
{
    const std::string_view rest = bytes_.substr(position_);
    const std::size_t asciiLength = textLength<TextBytes::ascii>(rest);
    const std::size_t length = asciiLength + textLength<TextBytes::all>(rest.substr(asciiLength));
    position_ += std::max<std::size_t>(length, 1);
    token_.kind = Token::Kind::text;
    token_.ascii = length == asciiLength;
    token_.text = rest.substr(0, length);
    return length != 0;
}

bool Lexer::lexControl()
{
    ++position_;
    if (position_ == bytes_.size()) {
        return false;
    }
    if (bytes_[position_] == '\'') {
        return lexBytes();
    }
    isLetter(bytes_[position_]) ? lexWord() : lexSymbol();
    return true;
}

void Lexer::lexWord()
{
    token_.kind = Token::Kind::word;
    token_.text = leadingLetters(bytes_.substr(position_));
    position_ += token_.text.size();
    lexParameter();
    if (at(0, ' ')) {
        ++position_;
    }
    if (token_.text == "bin") {
        lexData();
    }
}

/// A number wider than 32 bits keeps its low 32.
void Lexer::lexParameter()
{
    const std::size_t sign = at(0, '-') ? 1 : 0;
    token_.hasParameter = position_ + sign < bytes_.size() && isDigit(bytes_[position_ + sign]);
    token_.parameter = 0;
    if (!token_.hasParameter) {
        return;
    }
    position_ += sign;
    std::uint32_t number = 0;
    for (; position_ < bytes_.size() && isDigit(bytes_[position_]); ++position_) {
        number = number * 10 + static_cast<std::uint32_t>(bytes_[position_] - '0');
    }
    token_.parameter = static_cast<std::int32_t>(sign != 0 ? 0U - number : number);
}

void Lexer::lexData()
{
    token_.data = bytes_.substr(position_, static_cast<std::size_t>(std::max(token_.parameter, 0)));
    position_ += token_.data.size();
}

void Lexer::lexSymbol()
{
    token_.kind = Token::Kind::symbol;
    token_.text = at(0, '\r') ? "\n" : bytes_.substr(position_, 1);
    ++position_;
}

/// The byte written at the position of two digits; -1 where there are none.
int Lexer::hexByteAt(std::size_t position) const
{
    if (bytes_.size() < 2 || position > bytes_.size() - 2) {
        return -1;
    }
    const int high = hexDigit(bytes_[position]);
    const int low = hexDigit(bytes_[position + 1]);
    return high < 0 || low < 0 ? -1 : (high * 16) + low;
}

/// Stands on the apostrophe. Of a byte without its digits nothing is left, not even a single digit.
bool Lexer::lexBytes()
{
    std::size_t count = 0;
    for (int value = hexByteAt(position_ + 1); value >= 0; value = hexByteAt(position_ + 1)) {
        hexBytes_[count++] = static_cast<char>(value);
        position_ += 3;
        if (count == hexBytes_.size() || !at(0, '\\') || !at(1, '\'') || hexByteAt(position_ + 2) < 0) {
            token_.kind = Token::Kind::bytes;
            token_.text = {hexBytes_.data(), count};
            return true;
        }
        ++position_;
    }
    ++position_;
    position_ += position_ < bytes_.size() && hexDigit(bytes_[position_]) >= 0 ? 1 : 0;
    return false;
}

/// Writers that know the code page leave a trail byte bare; others put a backslash before it or write it in
/// hexadecimal. After two backslashes only what follows can tell: a control, or text.
int Lexer::peekTrailByte() const
{
    if (at(0, '{') || at(0, '}')) {
        return bytes_[position_];
    }
    const bool written = at(1, '\'') || (at(1, '\\') && !startsControl(bytes_.substr(position_ + 2)));
    return at(0, '\\') && !written ? '\\' : -1;
}

} // namespace corvellane::rtf
