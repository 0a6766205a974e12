#pragma once

#include "platform/script/ErrorInformation.h"

#include <cstddef>
#include <string_view>

namespace corvellane::script {

enum class TokenKind {
    word,
    integer,
    /// A quoted text as it is spelled, with its quotes and escapes.
    text,
    ampersand,
    openParenthesis,
    closeParenthesis,
    endOfLine,
    endOfScript,
    /// A text or a comment that is never closed, with everything behind it.
    unclosed,
    /// A character that starts no token.
    unknown,
};

struct Token {
    TokenKind kind = TokenKind::endOfScript;
    /// Points into the source.
    std::string_view spelling;
    SourceRange range;
};

/// Cuts the source text of a script into tokens, one at a time. White space, comments ("--" and "#" to the end of
/// the line, nested "(* … *)") and line ends after a continuation sign "¬" separate tokens; LF and CR each end a
/// line, so that CRLF ends an empty one as well. The source must outlive the lexer and its tokens. At the end every
/// further token is `endOfScript`.
class Lexer {
public:
    explicit Lexer(std::string_view source)
        : source_(source)
    {
    }

    Token next();

private:
    void skipSeparators();
    bool skipBlockComment();
    void skipToEndOfLine();
    bool skipContinuation();
    bool startsWith(std::string_view sign) const { return source_.substr(position_, sign.size()) == sign; }
    std::size_t lengthAt(TokenKind kind) const;
    std::size_t lengthOfText() const;

    std::string_view source_;
    std::size_t position_ = 0;
};

} // namespace corvellane::script
