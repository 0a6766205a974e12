#include "rtf/Writer.h"

#include "rtf/Hyperlink.h"

#include <utility>

namespace corvellane::rtf {

void Writer::setCodePage(int number)
{
    if (hasCodePage(number)) {
        documentPage_ = number;
        sinkChanged_ = true;
    }
}

/// A group in the place of a fallback is the fallback.
void Writer::openGroup()
{
    decoder_.breakBytes();
    group_.character = characterIndex();
    group_.paragraph = paragraphIndex();
    groups_.push(group_);
    group_.isField = false;
    if (std::exchange(fallback, 0) > 0) {
        skipGroup();
    }
}

void Writer::closeGroup()
{
    decoder_.breakBytes();
    fallback = 0;
    if (groups_.depth() == 1 && !paragraphIsEmpty()) {
        endParagraph();
    }
    const Destination left = group_.destination;
    if (left == Destination::fontTable) {
        changeFonts().finishEntry();
    }
    restore(groups_.pop());
    if (left == Destination::fieldInstruction && group_.destination != left && group_.isField) {
        if (auto target = hyperlinkTarget(instruction)) {
            changeCharacter().link = builder_.addLink(std::move(*target));
        }
    }
}

void Writer::restore(const GroupState& state)
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

/// What a font of symbols has at a byte is written in Unicode's private use area too.
void Writer::put(char32_t code)
{
    if (std::string* const out = sink()) {
        const bool isSymbol = code >= 0xF020 && code <= 0xF0FF && !page_->hasAscii();
        decoder_.appendUnit(isSymbol ? page_->decode(static_cast<char>(code & 0xFFU)) : code, *out);
    }
}

void Writer::putBytes(std::string_view bytes)
{
    if (std::string* const out = sink()) {
        decoder_.appendBytes(bytes, *page_, *out);
    }
}

/// Text that is not wanted still tells which braces are halves of characters.
void Writer::putText(std::string_view bytes, bool ascii)
{
    std::string* const out = sink();
    if (out == nullptr) {
        decoder_.breakBytes();
        if (!ascii && page_->isMultiByte()) {
            passedText_.clear();
            decoder_.appendBytes(bytes, *page_, passedText_);
        }
    } else if (ascii && page_->hasAscii() && !decoder_.awaitsTrail()) {
        out->append(bytes);
    } else {
        decoder_.appendBytes(bytes, *page_, *out);
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

std::string* Writer::sink()
{
    if (sinkChanged_) {
        findSink();
        sinkChanged_ = false;
    }
    if (endedCells != 0 && sink_ == &builder_.text()) {
        sink_->append(endedCells, '\t');
        endedCells = 0;
    }
    return sink_;
}

void Writer::findSink()
{
    page_ = &pages_.findOr(codePage(), documentPage_);
    sink_ = nullptr;
    if (group_.destination == Destination::fontTable) {
        sink_ = &fonts_.entryName();
    } else if (group_.destination == Destination::fieldInstruction) {
        sink_ = &instruction;
    } else if (group_.destination == Destination::body && !character_.hidden) {
        if (builder_.beginRun(characterIndex(), fonts_)) {
            decoder_.breakText();
        }
        sink_ = &builder_.text();
    }
}

int Writer::codePage() const
{
    const int page
        = group_.destination == Destination::fontTable ? fonts_.entryCodePage() : fonts_.font(character_.font).codePage;
    return page != 0 ? page : documentPage_;
}

std::uint32_t Writer::characterIndex()
{
    if (characterChanged_) {
        group_.character = builder_.indexOf(character_);
        characterChanged_ = false;
    }
    return group_.character;
}

std::uint32_t Writer::paragraphIndex()
{
    if (paragraphChanged_) {
        group_.paragraph = builder_.indexOf(paragraph_);
        paragraphChanged_ = false;
    }
    return group_.paragraph;
}

void Writer::addTab(std::int32_t position)
{
    const TabState tab{.position = position, .previous = paragraph_.lastTab, .kind = tabKind};
    changeParagraph().lastTab = builder_.addTab(tab);
    tabKind = TabKind::left;
}

void Writer::endParagraph()
{
    decoder_.breakText();
    ParagraphState state = paragraph_;
    state.pageBreakBefore = state.pageBreakBefore || pageBreak;
    builder_.endParagraph(characterIndex(), pageBreak ? builder_.indexOf(state) : paragraphIndex(), fonts_);
    pageBreak = false;
    nestedRowEnded = false;
}

} // namespace corvellane::rtf
