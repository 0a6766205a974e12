#include "rtf/Writer.h"

#include <utility>

namespace corvellane::rtf {
namespace {

constexpr int unicodePage = 65001;

} // namespace

/// What a font of symbols has at a byte is written in Unicode's private use area too.
void Writer::put(char32_t code)
{
    std::string* const out = sink();
    if (out != nullptr && hasRoom()) {
        const bool isSymbol = code >= 0xF020 && code <= 0xF0FF && !page_->hasAscii();
        decoder_.appendUnit(isSymbol ? page_->decode(static_cast<char>(code & 0xFFU)) : code, *out);
    }
}

void Writer::putEastAsian(char32_t code)
{
    const std::int32_t font = std::exchange(changeCharacter().font, character_.eastAsianFont);
    put(code);
    changeCharacter().font = font;
}

void Writer::putUnicode(std::string_view characters)
{
    if (characters.empty()) {
        return;
    }
    if (std::string* const out = sink()) {
        decoder_.breakText();
        out->append(characters);
    }
}

/// Before an item of a list, the bytes 0 to 8 stand for numbers.
void Writer::putBytes(std::string_view bytes)
{
    std::string* const out = sink();
    if (out == nullptr || !hasRoom()) {
        return;
    }
    if (group_.destination != Destination::levelText) {
        decoder_.appendBytes(bytes, *page_, *out);
        return;
    }
    for (const char byte : bytes) {
        if (static_cast<unsigned char>(byte) < Lists::mostLevels || out->empty()) {
            *out += byte;
        } else {
            decoder_.appendByte(byte, *page_, *out);
        }
    }
}

/// Text that is not wanted still tells which braces are halves of characters.
void Writer::putOtherText(std::string_view bytes, bool ascii)
{
    CodePage& page = !ascii && rawIsUnicode() ? pages_.findOr(unicodePage, documentPage_) : *page_;
    if (sink_ != nullptr && sink_->size() < mostText_) {
        decoder_.appendBytes(bytes, page, *sink_);
        return;
    }
    decoder_.breakBytes();
    if (!ascii && page.isMultiByte()) {
        passedText_.clear();
        decoder_.appendBytes(bytes, page, passedText_);
    }
}

bool Writer::putTrailByte(char byte)
{
    std::string& out = sink_ != nullptr ? *sink_ : passedText_;
    const bool completes = decoder_.completesCharacter(byte, *page_, out);
    if (completes) {
        decoder_.appendByte(byte, *page_, out);
    }
    return completes;
}

void Writer::findSink()
{
    if (atParagraphBegin_ && isInBody()) {
        beginParagraph();
    }
    findPage();
    sinkChanged_ = false;
    decoder_.setSubstitute(nullptr);
    if (group_.destination != Destination::body) {
        sink_ = sinkOutsideBody();
        return;
    }
    sink_ = nullptr;
    if (!character_.hidden) {
        if (builder_.beginRun(characterIndex(), fonts_)) {
            decoder_.breakText();
        }
        sink_ = &builder_.text();
        decoder_.setSubstitute(page_->isMultiByte() ? pages_.find(documentPage_) : nullptr);
    }
}

/// Most text is in the page of the text before it.
void Writer::findPage()
{
    const int number = codePage();
    if (number != pageNumber_) {
        page_ = &pages_.findOr(number, documentPage_);
        pageNumber_ = number;
    }
}

int Writer::codePage() const
{
    const bool isFontName
        = group_.destination == Destination::fontTable || group_.destination == Destination::fontAlternative;
    const int page = isFontName ? fonts_.entryCodePage() : fonts_.font(character_.font).codePage;
    return page != 0 ? page : documentPage_;
}

std::string* Writer::sinkOutsideBody()
{
    switch (group_.destination) {
    case Destination::fontTable:
        return &fonts_.entryName();
    case Destination::fontAlternative:
        return &fonts_.entryAlternative();
    case Destination::fieldInstruction:
        return &instruction;
    case Destination::levelText:
        return &lists.level().text;
    case Destination::numberingBefore:
        return &lists.before;
    case Destination::numberingAfter:
        return &lists.after;
    case Destination::propertyName:
        return &pictures.propertyName;
    case Destination::propertyValue:
        return &pictures.alternative;
    case Destination::body:
    case Destination::skipped:
    case Destination::colorTable:
    case Destination::alternative:
    case Destination::lists:
    case Destination::listLevel:
    case Destination::numbering:
    case Destination::picture:
        break;
    }
    return nullptr;
}

} // namespace corvellane::rtf
