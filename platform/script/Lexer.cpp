#include "platform/script/Lexer.h"

#include <algorithm>

namespace corvellane::script {
namespace {

constexpr std::string_view continuationSign = "\xC2\xAC";

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

constexpr bool isWordStart(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || character == '_';
}

constexpr TokenKind kindStartedBy(char character)
{
    switch (character) {
    case '"':
        return TokenKind::text;
    case '&':
        return TokenKind::ampersand;
    case '(':
        return TokenKind::openParenthesis;
    case ')':
        return TokenKind::closeParenthesis;
    case '\n':
    case '\r':
        return TokenKind::endOfLine;
    default:
        break;
    }
    if (isDigit(character)) {
        return TokenKind::integer;
    }
    return isWordStart(character) ? TokenKind::word : TokenKind::unknown;
}

template <typename Belongs>
std::size_t lengthWhile(std::string_view text, Belongs belongs)
{
    return static_cast<std::size_t>(std::ranges::find_if_not(text, belongs) - text.begin());
}

/// The bytes of the UTF-8 character at the start of `text`, or 1 when there is none.
std::size_t lengthOfCharacter(std::string_view text)
{
    const std::string_view rest = text.substr(1);
    return 1
        + lengthWhile(rest.substr(0, 3), [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; });
}

} // namespace

Token Lexer::next()
{
    skipSeparators();
    if (position_ >= source_.size()) {
        return {TokenKind::endOfScript, {}, {source_.size(), 0}};
    }
    TokenKind kind = kindStartedBy(source_[position_]);
    std::size_t length = startsWith("(*") ? 0 : lengthAt(kind);
    if (length == 0) {
        kind = TokenKind::unclosed;
        length = source_.size() - position_;
    }
    const Token token{kind, source_.substr(position_, length), {position_, length}};
    position_ += length;
    return token;
}

/// Stops before a block comment that is never closed.
void Lexer::skipSeparators()
{
    while (position_ < source_.size()) {
        const char character = source_[position_];
        if (character == ' ' || character == '\t') {
            ++position_;
        } else if (character == '#' || startsWith("--")) {
            skipToEndOfLine();
        } else if (!skipBlockComment() && !skipContinuation()) {
            return;
        }
    }
}

void Lexer::skipToEndOfLine()
{
    position_ = std::min(source_.find_first_of("\r\n", position_), source_.size());
}

bool Lexer::skipBlockComment()
{
    if (!startsWith("(*")) {
        return false;
    }
    std::size_t depth = 1;
    std::size_t end = position_ + 2;
    while (depth > 0) {
        end = source_.find('*', end);
        if (end == std::string_view::npos) {
            return false;
        }
        const bool opens = source_[end - 1] == '(';
        const bool closes = source_.substr(end + 1, 1) == ")";
        depth += opens ? 1U : 0U;
        depth -= closes && !opens ? 1U : 0U;
        end += closes && !opens ? 2U : 1U;
    }
    position_ = end;
    return true;
}

bool Lexer::skipContinuation()
{
    if (!startsWith(continuationSign)) {
        return false;
    }
    const std::string_view rest = source_.substr(position_ + continuationSign.size());
    const std::size_t blanks = lengthWhile(rest, [](char character) { return character == ' ' || character == '\t'; });
    const std::size_t lineEnd = rest.substr(blanks, 2) == "\r\n" ? 2 : 1;
    if (blanks == rest.size() || kindStartedBy(rest[blanks]) != TokenKind::endOfLine) {
        return false;
    }
    position_ += continuationSign.size() + blanks + lineEnd;
    return true;
}

/// The length of the token of this kind at the position; 0 when it is never closed.
std::size_t Lexer::lengthAt(TokenKind kind) const
{
    const std::string_view rest = source_.substr(position_);
    switch (kind) {
    case TokenKind::text:
        return lengthOfText();
    case TokenKind::integer:
        return lengthWhile(rest, isDigit);
    case TokenKind::word:
        return lengthWhile(rest, [](char character) { return isWordStart(character) || isDigit(character); });
    case TokenKind::unknown:
        return lengthOfCharacter(rest);
    case TokenKind::endOfLine:
    case TokenKind::ampersand:
    case TokenKind::openParenthesis:
    case TokenKind::closeParenthesis:
    case TokenKind::endOfScript:
    case TokenKind::unclosed:
        break;
    }
    return 1;
}

std::size_t Lexer::lengthOfText() const
{
    for (std::size_t end = position_ + 1; end < source_.size(); ++end) {
        if (source_[end] == '"') {
            return end + 1 - position_;
        }
        if (source_[end] == '\\') {
            ++end;
        }
    }
    return 0;
}

} // namespace corvellane::script
