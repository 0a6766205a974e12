#include "rtf/RtfInterpreter.h"

#include "rtf/Hyperlink.h"

#include <algorithm>
#include <utility>

namespace corvellane::rtf {
namespace {

/// Raw bytes of most code pages take no more room in UTF-8.
constexpr std::size_t mostGrowth = 2;

} // namespace

RtfInterpreter::RtfInterpreter(std::string_view bytes)
    : lexer_(bytes)
    , builder_(bytes.size() * mostGrowth)
{
}

bool RtfInterpreter::run()
{
    for (;;) {
        const RtfToken& token = lexer_.next();
        const bool opened = groupJustOpened_;
        groupJustOpened_ = false;
        if (isOptional_ && token.kind != RtfToken::Kind::word) {
            skipGroup();
        }
        switch (token.kind) {
        case RtfToken::Kind::end:
            return false;
        case RtfToken::Kind::open:
            openGroup();
            break;
        case RtfToken::Kind::close:
            closeGroup();
            if (groups_.depth() == 0) {
                return true;
            }
            break;
        case RtfToken::Kind::word:
            onWord(token);
            break;
        case RtfToken::Kind::symbol:
            isOptional_ = opened && token.text == "*";
            onSymbol(token);
            break;
        case RtfToken::Kind::bytes:
            onBytes(token.text);
            break;
        case RtfToken::Kind::text:
            onText(token);
            break;
        }
    }
}

/// A group in the place of a fallback is the fallback.
void RtfInterpreter::openGroup()
{
    decoder_.breakBytes();
    group_.character = characterIndex();
    group_.paragraph = paragraphIndex();
    groups_.push(group_);
    group_.isField = false;
    groupJustOpened_ = true;
    if (fallback_ > 0) {
        fallback_ = 0;
        skipGroup();
    }
}

void RtfInterpreter::closeGroup()
{
    decoder_.breakBytes();
    fallback_ = 0;
    if (groups_.depth() == 1) {
        endDocument();
    }
    const Destination left = group_.destination;
    if (left == Destination::fontTable) {
        fonts_.finishEntry();
        sinkChanged_ = true;
    }
    restore(groups_.pop());
    if (left == Destination::fieldInstruction && group_.destination != left && group_.isField) {
        if (auto target = hyperlinkTarget(instruction_)) {
            changeCharacter().link = builder_.addLink(std::move(*target));
        }
    }
}

void RtfInterpreter::restore(const GroupState& state)
{
    if (characterChanged_ || state.character != group_.character) {
        character_ = builder_.character(state.character);
        characterChanged_ = false;
        sinkChanged_ = true;
    }
    if (paragraphChanged_ || state.paragraph != group_.paragraph) {
        paragraph_ = builder_.paragraph(state.paragraph);
        paragraphChanged_ = false;
    }
    sinkChanged_ = sinkChanged_ || state.destination != group_.destination;
    group_ = state;
}

void RtfInterpreter::skipGroup()
{
    group_.destination = Destination::skipped;
    isOptional_ = false;
    sinkChanged_ = true;
}

void RtfInterpreter::onWord(const RtfToken& token)
{
    const ControlWord* const word = findControlWord(token.text);
    if (isOptional_ && word == nullptr) {
        skipGroup();
    }
    isOptional_ = false;
    if (fallback_ > 0 && isFallback(word)) {
        return;
    }
    decoder_.breakBytes();
    if (word != nullptr && !isSkipping(word->action)) {
        (this->*handlerOf(word->action))(word->value, token);
    }
}

/// A writer may put any word in the place of a character, but one that formats is more likely one that the writer
/// forgot the fallback before.
bool RtfInterpreter::isFallback(const ControlWord* word)
{
    const bool counts = word == nullptr || word->action == RtfAction::character;
    fallback_ = counts ? fallback_ - 1 : 0;
    return counts;
}

bool RtfInterpreter::isSkipping(RtfAction action) const
{
    return group_.destination == Destination::skipped
        || (group_.destination == Destination::alternative && action != RtfAction::unicodeAlternative);
}

void RtfInterpreter::onSymbol(const RtfToken& token)
{
    const char symbol = token.text[0];
    if (symbol == '\n') {
        fallback_ = 0;
        doParagraph(0, token);
    } else if (symbol == '\\' || symbol == '{' || symbol == '}') {
        onBytes(token.text);
    } else if (fallback_ > 0) {
        --fallback_;
    } else if (symbol == '~' || symbol == '_') {
        put(symbol == '~' ? U'\u00A0' : U'\u2011');
    } else if (symbol == '\t') {
        put(U'\t');
    }
}

/// Passes over what of the bytes belongs to a fallback.
std::string_view RtfInterpreter::withoutFallback(std::string_view bytes)
{
    if (fallback_ > 0) {
        const std::size_t passed = std::min(bytes.size(), static_cast<std::size_t>(fallback_));
        fallback_ -= static_cast<std::int32_t>(passed);
        bytes.remove_prefix(passed);
    }
    return bytes;
}

/// Bytes that are not written as they are never stand for RTF's own characters.
void RtfInterpreter::onBytes(std::string_view bytes)
{
    const std::string_view wanted = withoutFallback(bytes);
    if (std::string* const out = wanted.empty() ? nullptr : sink()) {
        decoder_.appendBytes(wanted, *page_, *out);
    }
}

void RtfInterpreter::onText(const RtfToken& token)
{
    const std::string_view bytes = withoutFallback(token.text);
    if (group_.destination == Destination::colorTable) {
        for (auto entries = std::count(bytes.begin(), bytes.end(), ';'); entries > 0; --entries) {
            colors_.finishEntry();
        }
    } else if (group_.destination == Destination::fontTable) {
        putFontNames(bytes, token.ascii);
    } else {
        putText(bytes, token.ascii);
    }
}

void RtfInterpreter::putFontNames(std::string_view bytes, bool ascii)
{
    for (std::size_t end = bytes.find(';'); end != std::string_view::npos; end = bytes.find(';')) {
        putText(bytes.substr(0, end), ascii);
        fonts_.finishEntry();
        sinkChanged_ = true;
        bytes.remove_prefix(end + 1);
    }
    putText(bytes, ascii);
}

void RtfInterpreter::putText(std::string_view bytes, bool ascii)
{
    std::string* const out = sink();
    if (out == nullptr) {
        if (!ascii && page_->isMultiByte()) {
            passText(bytes);
        }
    } else if (ascii && page_->hasAscii() && !decoder_.awaitsTrail()) {
        out->append(bytes);
    } else {
        decoder_.appendBytes(bytes, *page_, *out);
        putTrailByte(*out);
    }
}

void RtfInterpreter::putTrailByte(std::string& out)
{
    const int trail = decoder_.awaitsTrail() ? lexer_.peekTrailByte() : -1;
    if (trail >= 0 && decoder_.completesCharacter(static_cast<char>(trail), *page_, out)) {
        lexer_.skipByte();
        decoder_.appendByte(static_cast<char>(trail), *page_, out);
    }
}

/// Text that is not wanted still tells which braces are halves of characters.
void RtfInterpreter::passText(std::string_view bytes)
{
    passedText_.clear();
    decoder_.breakText();
    decoder_.appendBytes(bytes, *page_, passedText_);
    putTrailByte(passedText_);
    decoder_.breakText();
}

void RtfInterpreter::put(char32_t code)
{
    if (std::string* const out = sink()) {
        decoder_.appendUnit(code, *out);
    }
}

std::string* RtfInterpreter::sink()
{
    if (sinkChanged_) {
        findSink();
        sinkChanged_ = false;
    }
    if (endedCells_ != 0 && sink_ == &builder_.text()) {
        sink_->append(endedCells_, '\t');
        endedCells_ = 0;
    }
    return sink_;
}

void RtfInterpreter::findSink()
{
    page_ = &pages_.findOr(codePage(), documentPage_);
    sink_ = nullptr;
    if (group_.destination == Destination::fontTable) {
        sink_ = &fonts_.entryName();
    } else if (group_.destination == Destination::fieldInstruction) {
        sink_ = &instruction_;
    } else if (group_.destination == Destination::body && !character_.is(CharacterFlag::hidden)) {
        if (builder_.beginRun(characterIndex(), fonts_)) {
            decoder_.breakText();
        }
        sink_ = &builder_.text();
    }
}

int RtfInterpreter::codePage() const
{
    const int page
        = group_.destination == Destination::fontTable ? fonts_.entryCodePage() : fonts_.font(character_.font).codePage;
    return page != 0 ? page : documentPage_;
}

std::uint32_t RtfInterpreter::characterIndex()
{
    if (characterChanged_) {
        group_.character = builder_.indexOf(character_);
        characterChanged_ = false;
    }
    return group_.character;
}

std::uint32_t RtfInterpreter::paragraphIndex()
{
    if (paragraphChanged_) {
        group_.paragraph = builder_.indexOf(paragraph_);
        paragraphChanged_ = false;
    }
    return group_.paragraph;
}

CharacterState& RtfInterpreter::changeCharacter()
{
    characterChanged_ = true;
    sinkChanged_ = true;
    return character_;
}

ParagraphState& RtfInterpreter::changeParagraph()
{
    paragraphChanged_ = true;
    return paragraph_;
}

void RtfInterpreter::endParagraph()
{
    decoder_.breakText();
    ParagraphState state = paragraph_;
    state.pageBreakBefore |= static_cast<std::uint8_t>(pageBreak_);
    builder_.endParagraph(characterIndex(), pageBreak_ ? builder_.indexOf(state) : paragraphIndex(), fonts_);
    pageBreak_ = false;
    nestedRowEnded_ = false;
}

void RtfInterpreter::endDocument()
{
    endedCells_ = 0;
    if (!builder_.paragraphIsEmpty()) {
        endParagraph();
    }
}

} // namespace corvellane::rtf
