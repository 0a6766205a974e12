#pragma once

#include "platform/script/Lexer.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace corvellane::script {

/// The tokens of a script with one token of look-ahead. The first error is kept and ends the text as far as the
/// reader sees it, so that every loop over the tokens ends by itself.
class TokenStream {
public:
    explicit TokenStream(std::string_view source)
        : lexer_(source)
        , token_(lexer_.next())
    {
    }

    const Token& current() const { return token_; }
    const std::optional<LocatedFailure>& error() const { return error_; }

    bool at(TokenKind kind) const { return token_.kind == kind; }
    bool at(std::string_view word) const;
    bool atEndOfStatement() const { return at(TokenKind::endOfLine) || at(TokenKind::endOfScript); }
    /// Whether the current word belongs to the language and so can be no name.
    bool atReservedWord() const;

    /// Takes the current token, whatever it is.
    Token advance();
    /// Takes the current token if it is this kind or this word.
    template <typename Sign>
    bool accept(Sign sign)
    {
        const bool found = at(sign);
        if (found) {
            advance();
        }
        return found;
    }

    Token expect(TokenKind kind, std::string_view description);
    void expect(std::initializer_list<std::string_view> words);
    void expectEndOfLine();

    void failExpecting(std::string_view expected);
    void fail(std::string message, SourceRange range);

    /// From `start` to the end of the last token taken.
    SourceRange rangeFrom(std::size_t start) const { return {start, previousEnd_ - start}; }

private:
    Lexer lexer_;
    Token token_;
    std::size_t previousEnd_ = 0;
    std::optional<LocatedFailure> error_;
};

/// `text` with ASCII capitals made small: what names and key words are compared by.
std::string inSmallLetters(std::string_view text);

} // namespace corvellane::script
