#include "platform/script/Parser.h"

#include "platform/script/TokenStream.h"

#include <charconv>
#include <utility>

namespace corvellane::script {
namespace {

constexpr int greatestDepth = 200;

/// The character that a backslash followed by `sign` stands for; NUL when it stands for none.
char escapedCharacter(char sign)
{
    switch (sign) {
    case '"':
    case '\\':
        return sign;
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return '\0';
    }
}

/// The text of a literal; empty for any other expression.
std::string literalText(const Expression& expression)
{
    const auto* literal = std::get_if<TextLiteral>(&expression.form);
    return literal == nullptr ? std::string() : literal->text;
}

class Parser {
public:
    explicit Parser(std::string_view source)
        : tokens_(source)
    {
    }

    Expected<SyntaxTree, LocatedFailure> parse()
    {
        Block statements = parseBlock();
        tokens_.expect(TokenKind::endOfScript, "end of line");
        if (const auto& error = tokens_.error()) {
            return tl::unexpected(*error);
        }
        return SyntaxTree{std::move(statements), std::move(privilegedCommands_)};
    }

private:
    /// Goes one level down for as long as it lives.
    class Level {
    public:
        explicit Level(Parser& parser)
            : depth_(parser.depth_)
        {
            if (++depth_ > greatestDepth) {
                parser.tokens_.fail("The script is nested too deeply.", parser.tokens_.current().range);
            }
        }
        ~Level() { --depth_; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

    private:
        int& depth_;
    };

    Block parseBlock()
    {
        const Level level(*this);
        Block block;
        while (!tokens_.at(TokenKind::endOfScript) && !tokens_.at("end") && !tokens_.at("on")) {
            if (!tokens_.accept(TokenKind::endOfLine)) {
                block.push_back(parseStatement());
            }
        }
        return block;
    }

    Statement parseStatement()
    {
        const std::size_t start = tokens_.current().range.start;
        StatementForm form = parseStatementForm();
        Statement statement{std::move(form), tokens_.rangeFrom(start)};
        tokens_.expectEndOfLine();
        return statement;
    }

    StatementForm parseStatementForm()
    {
        if (tokens_.accept("try")) {
            return parseTry();
        }
        if (tokens_.accept("tell")) {
            return parseTell();
        }
        if (tokens_.accept("set")) {
            return parseSet();
        }
        if (tokens_.accept("return")) {
            return tokens_.atEndOfStatement() ? ReturnStatement() : ReturnStatement{parseExpression()};
        }
        return ExpressionStatement{parseExpression()};
    }

    TryStatement parseTry()
    {
        TryStatement statement;
        tokens_.expectEndOfLine();
        statement.body = parseBlock();
        if (tokens_.accept("on")) {
            tokens_.expect({"error"});
            if (!tokens_.atEndOfStatement()) {
                statement.errorMessage = parseName();
            }
            tokens_.expectEndOfLine();
            statement.errorBranch = parseBlock();
        }
        parseEnd("try");
        return statement;
    }

    TellStatement parseTell()
    {
        TellStatement statement;
        tokens_.expect({"application"});
        statement.application = unescape(tokens_.expect(TokenKind::text, "application name"));
        tokens_.expectEndOfLine();
        statement.body = parseBlock();
        parseEnd("tell");
        return statement;
    }

    void parseEnd(std::string_view word)
    {
        tokens_.expect({"end"});
        if (!tokens_.atEndOfStatement()) {
            tokens_.expect({word});
        }
    }

    SetStatement parseSet()
    {
        VariableReference variable = parseName();
        tokens_.expect({"to"});
        return {std::move(variable), parseExpression()};
    }

    VariableReference parseName()
    {
        if (tokens_.atReservedWord()) {
            tokens_.failExpecting("name");
        }
        return {inSmallLetters(tokens_.expect(TokenKind::word, "name").spelling)};
    }

    Expression parseExpression()
    {
        Expression first = parseOperand();
        if (!tokens_.at(TokenKind::ampersand)) {
            return first;
        }
        Concatenation concatenation;
        concatenation.operands.push_back(std::move(first));
        while (tokens_.accept(TokenKind::ampersand)) {
            concatenation.operands.push_back(parseOperand());
        }
        return {std::move(concatenation)};
    }

    Expression parseOperand()
    {
        const Level level(*this);
        if (tokens_.at(TokenKind::text)) {
            return {TextLiteral{unescape(tokens_.advance())}};
        }
        if (tokens_.at(TokenKind::integer)) {
            return {parseInteger(tokens_.advance())};
        }
        if (tokens_.accept(TokenKind::openParenthesis)) {
            Expression inner = parseExpression();
            tokens_.expect(TokenKind::closeParenthesis, "“)”");
            return inner;
        }
        if (tokens_.accept("do")) {
            return {parseShellCommand()};
        }
        if (tokens_.accept("path")) {
            tokens_.expect({"to", "application", "support"});
            return {PathToApplicationSupport{}};
        }
        if (tokens_.atReservedWord() || !tokens_.at(TokenKind::word)) {
            tokens_.failExpecting("expression");
        }
        return {parseName()};
    }

    IntegerLiteral parseInteger(const Token& token)
    {
        IntegerLiteral literal{};
        const char* const first = token.spelling.data();
        if (std::from_chars(first, first + token.spelling.size(), literal.value).ec != std::errc{}) {
            tokens_.fail("The number “" + std::string(token.spelling) + "” is too large.", token.range);
        }
        return literal;
    }

    ShellCommand parseShellCommand()
    {
        tokens_.expect({"shell", "script"});
        ShellCommand command{std::make_unique<Expression>(parseExpression()), std::nullopt};
        if (tokens_.accept("with")) {
            command.privileged = privilegedCommands_.size();
            privilegedCommands_.push_back(literalText(*command.command));
            tokens_.expect({"administrator", "privileges"});
        } else if (tokens_.accept("without")) {
            tokens_.expect({"administrator", "privileges"});
        }
        return command;
    }

    std::string unescape(const Token& token)
    {
        std::string text;
        std::string_view rest = token.spelling.substr(std::min<std::size_t>(1, token.spelling.size()));
        rest.remove_suffix(std::min<std::size_t>(1, rest.size()));
        text.reserve(rest.size());
        for (auto escape = rest.find('\\'); escape != std::string_view::npos; escape = rest.find('\\')) {
            const char character = escapedCharacter(rest[escape + 1]);
            if (character == '\0') {
                const auto offset = static_cast<std::size_t>(rest.data() - token.spelling.data()) + escape;
                tokens_.fail("Expected “\"” but found unknown token.", {token.range.start + offset, 2});
                return text;
            }
            text.append(rest.substr(0, escape)) += character;
            rest.remove_prefix(escape + 2);
        }
        return text.append(rest);
    }

    TokenStream tokens_;
    std::vector<std::string> privilegedCommands_;
    int depth_ = 0;
};

} // namespace

Expected<SyntaxTree, LocatedFailure> parse(std::string_view source)
{
    return Parser(source).parse();
}

} // namespace corvellane::script
