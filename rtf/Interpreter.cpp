#include "rtf/Interpreter.h"

#include "rtf/ControlWords.h"
#include "rtf/Lexer.h"
#include "rtf/TextActions.h"
#include "rtf/Writer.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace corvellane::rtf {
namespace {

class Interpreter {
public:
    Interpreter(std::string_view bytes, std::string* own, Writer& writer)
        : lexer_(bytes)
        , writer_(writer)
        , own_(own)
        , size_(bytes.size())
        , leftToGiveBack_(own != nullptr ? bytes.size() / 2 : 0)
    {
    }

    bool run();

private:
    void carryOut(const Token& token);
    void onWord(const Token& token);
    void onOpen();
    void onSymbol(const Token& token);
    void onText(const Token& token);
    void onTextOutsideBody(std::string_view bytes, bool ascii);
    void takeTrailByte();
    std::string_view withoutFallback(std::string_view bytes);
    std::string_view withoutFonts(std::string_view names, bool ascii);
    void giveBack();

    Lexer lexer_;
    Writer& writer_;
    std::string* own_;
    std::size_t size_;
    /// When so many bytes are left to read, those that are read may be given back; 0 for never.
    std::size_t leftToGiveBack_;
};

bool Interpreter::run()
{
    while (true) {
        const Token& token = lexer_.next();
        if (token.kind == Token::Kind::word) [[likely]] {
            onWord(token);
            continue;
        }
        carryOut(token);
        if (token.kind == Token::Kind::end || (token.kind == Token::Kind::close && writer_.depth() == 0)) {
            return token.kind == Token::Kind::close;
        }
    }
}

void Interpreter::carryOut(const Token& token)
{
    switch (token.kind) {
    case Token::Kind::end:
        break;
    case Token::Kind::open:
        onOpen();
        break;
    case Token::Kind::close:
        writer_.closeGroup();
        break;
    case Token::Kind::word:
        onWord(token);
        break;
    case Token::Kind::run:
        std::ranges::for_each(lexer_.run(), [this](const Token& word) { onWord(word); });
        break;
    case Token::Kind::symbol:
        onSymbol(token);
        break;
    case Token::Kind::bytes:
        writer_.putBytes(withoutFallback(token.text));
        break;
    case Token::Kind::text:
        onText(token);
        break;
    }
}

void Interpreter::onOpen()
{
    writer_.openGroup();
    if (lexer_.takeOptionalMark() && !lexer_.isAtKnownWord()) {
        writer_.skipGroup();
    }
}

/// A writer may put any word in the place of a character, but one that formats is more likely one that the writer
/// forgot the fallback before.
void Interpreter::onWord(const Token& token)
{
    const ControlWord& word = *token.word;
    writer_.breakBytes();
    if (word.action != nullptr) {
        writer_.fallback = 0;
        if (writer_.group().destination != Destination::skipped) {
            word.action(writer_, token);
        }
    } else if (writer_.fallback > 0) {
        --writer_.fallback;
    } else if (word.character != 0) {
        writer_.put(word.character);
    }
}

void Interpreter::onSymbol(const Token& token)
{
    const char symbol = token.text[0];
    if (symbol == '\n') {
        writer_.fallback = 0;
        actions::paragraph(writer_, token);
    } else if (symbol == '\\' || symbol == '{' || symbol == '}') {
        writer_.putBytes(withoutFallback(token.text));
    } else if (writer_.fallback > 0) {
        --writer_.fallback;
    } else if (symbol == '~' || symbol == '_') {
        writer_.put(symbol == '~' ? U'\u00A0' : U'\u2011');
    } else if (symbol == '\t') {
        writer_.put(U'\t');
    }
}

void Interpreter::onText(const Token& token)
{
    const std::string_view bytes = writer_.fallback > 0 ? withoutFallback(token.text) : token.text;
    if (writer_.group().destination != Destination::body) {
        onTextOutsideBody(bytes, token.ascii);
        return;
    }
    writer_.putText(bytes, token.ascii);
    takeTrailByte();
    if (lexer_.rest().size() < leftToGiveBack_) {
        giveBack();
    }
}

/// All that is moved is no more than there were bytes.
void Interpreter::giveBack()
{
    constexpr std::size_t fewestBytes = std::size_t{1} << 20U;
    const std::string_view rest = lexer_.rest();
    if (writer_.textIsLongerThan(size_ - rest.size())) {
        writer_.rawIsUnicode();
        std::string moved(rest);
        own_->swap(moved);
        lexer_.moveTo(*own_);
    }
    leftToGiveBack_ = rest.size() > fewestBytes ? rest.size() / 2 : 0;
}

void Interpreter::onTextOutsideBody(std::string_view bytes, bool ascii)
{
    const Destination to = writer_.group().destination;
    if (to == Destination::colorTable) {
        for (auto entries = std::ranges::count(bytes, ';'); entries > 0; --entries) {
            writer_.colors.finishEntry();
        }
    } else if (to == Destination::picture) {
        writer_.pictures.addDigits(bytes);
    } else if (writer_.hasRoom()) {
        writer_.putText(to == Destination::fontTable ? withoutFonts(bytes, ascii) : bytes, ascii);
        takeTrailByte();
    }
}

/// A raw byte that ends a character although it means something else to RTF.
void Interpreter::takeTrailByte()
{
    const int trail = writer_.awaitsTrail() && !writer_.rawIsUnicode() ? lexer_.peekTrailByte() : -1;
    if (trail >= 0 && writer_.putTrailByte(static_cast<char>(trail))) {
        lexer_.skipByte();
    }
}

/// Passes over what of the bytes belongs to a fallback.
std::string_view Interpreter::withoutFallback(std::string_view bytes)
{
    const std::size_t passed = std::min(bytes.size(), static_cast<std::size_t>(writer_.fallback));
    writer_.fallback -= static_cast<std::int32_t>(passed);
    bytes.remove_prefix(passed);
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; };
    if (passed != 0 && !bytes.empty() && continues(bytes[0]) && writer_.rawIsUnicode()) {
        bytes.remove_prefix(static_cast<std::size_t>(std::ranges::find_if_not(bytes, continues) - bytes.begin()));
    }
    return bytes;
}

/// Passes over the names that end here.
std::string_view Interpreter::withoutFonts(std::string_view names, bool ascii)
{
    for (std::size_t end = names.find(';'); end != std::string_view::npos; end = names.find(';')) {
        writer_.putText(names.substr(0, end), ascii);
        writer_.changeFonts().finishEntry();
        names.remove_prefix(end + 1);
    }
    return names;
}

} // namespace

bool interpret(std::string_view bytes, std::string* own, Writer& writer)
{
    return Interpreter(bytes, own, writer).run();
}

} // namespace corvellane::rtf
