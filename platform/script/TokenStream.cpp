#include "platform/script/TokenStream.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace corvellane::script {
namespace {

char toSmallLetter(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool isSameWord(std::string_view spelling, std::string_view word)
{
    return std::ranges::equal(
        spelling, word, [](char spelled, char expected) { return toSmallLetter(spelled) == expected; });
}

std::string inQuotes(std::string_view text)
{
    return "“" + std::string(text) + "”";
}

std::string describe(const Token& token)
{
    switch (token.kind) {
    case TokenKind::endOfLine:
        return "end of line";
    case TokenKind::endOfScript:
    case TokenKind::unclosed:
        return "end of script";
    case TokenKind::unknown:
        return "unknown token";
    case TokenKind::word:
    case TokenKind::integer:
    case TokenKind::text:
    case TokenKind::ampersand:
    case TokenKind::openParenthesis:
    case TokenKind::closeParenthesis:
        break;
    }
    return inQuotes(token.spelling);
}

} // namespace

bool TokenStream::at(std::string_view word) const
{
    return at(TokenKind::word) && isSameWord(token_.spelling, word);
}

bool TokenStream::atReservedWord() const
{
    constexpr std::array<std::string_view, 18> words{"administrator", "application", "do", "end", "error", "on", "path",
        "privileges", "return", "script", "set", "shell", "support", "tell", "to", "try", "with", "without"};
    return std::ranges::any_of(words, [&](std::string_view word) { return at(word); });
}

Token TokenStream::advance()
{
    previousEnd_ = token_.range.start + token_.range.length;
    return std::exchange(token_, error_ ? Token{} : lexer_.next());
}

Token TokenStream::expect(TokenKind kind, std::string_view description)
{
    if (!at(kind)) {
        failExpecting(description);
    }
    return advance();
}

void TokenStream::expect(std::initializer_list<std::string_view> words)
{
    for (const std::string_view word : words) {
        if (!accept(word)) {
            failExpecting(inQuotes(word));
        }
    }
}

void TokenStream::expectEndOfLine()
{
    if (!at(TokenKind::endOfScript)) {
        expect(TokenKind::endOfLine, "end of line");
    }
}

void TokenStream::failExpecting(std::string_view expected)
{
    fail("Expected " + std::string(expected) + " but found " + describe(token_) + ".", token_.range);
}

void TokenStream::fail(std::string message, SourceRange range)
{
    if (!error_) {
        error_ = LocatedFailure{{std::move(message), error_number::syntax}, range};
        token_ = Token{};
    }
}

std::string inSmallLetters(std::string_view text)
{
    std::string letters(text);
    std::ranges::transform(letters, letters.begin(), toSmallLetter);
    return letters;
}

} // namespace corvellane::script
