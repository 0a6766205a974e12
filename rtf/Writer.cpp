#include "rtf/Writer.h"

#include "rtf/Utf8.h"

#include <algorithm>
#include <utility>

namespace corvellane::rtf {
namespace {

constexpr int unicodePage = 65001;
constexpr std::uint8_t deepestTable = 16;
/// No language's text takes more bytes in UTF-8 for each of a code page's; pictographs of a font may.
constexpr std::size_t languageGrowth = 3;
constexpr std::size_t freeGrowth = 65536;
constexpr char32_t objectCharacter = 0xFFFC;
constexpr Border noteRule{.style = LineStyle::solid, .width = 10, .space = 6, .isSaid = true, .color = {}};

} // namespace

Writer::Writer(std::string_view bytes, std::optional<bool> rawIsUnicode)
    : builder_(bytes.size())
    , bytes_(bytes)
    , rawIsUnicode_(rawIsUnicode)
    , markerRoom_(bytes.size())
    , mostText_((bytes.size() * languageGrowth) + freeGrowth)
{
}

bool Writer::rawIsUnicode()
{
    if (!rawIsUnicode_) {
        rawIsUnicode_ = isUtf8Text(bytes_);
    }
    return *rawIsUnicode_;
}

void Writer::setCodePage(int number)
{
    if (hasCodePage(number)) {
        documentPage_ = number;
        pageNumber_ = 0;
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
    const GroupState left = group_;
    if (left.isField) {
        endSymbol();
    }
    if (groups_.depth() == 1 && !paragraphIsEmpty()) {
        endParagraph();
    }
    const GroupState state = groups_.pop();
    leave(state);
    restore(state);
    if (left.destination == Destination::fieldInstruction && group_.destination != left.destination && group_.isField) {
        endInstruction();
    } else if (left.destination == Destination::numbering && group_.destination == Destination::body) {
        changeParagraph().list = lists.endNumbering();
        changeParagraph().listLevel = 0;
    } else if (left.destination == Destination::picture && group_.destination == Destination::body) {
        endPicture();
    }
}

/// What the end of a group means that was in effect in it.
void Writer::leave(const GroupState& around)
{
    if (group_.destination == Destination::fontTable) {
        changeFonts().finishEntry();
    } else if (group_.destination == Destination::listLevel && around.destination == Destination::lists) {
        ListLevel& level = lists.level();
        level.font = character_.font;
        level.left = paragraph_.leftIndent;
        level.firstLine = paragraph_.firstLineIndent;
        lists.endLevel();
    }
    if (group_.inNote && !around.inNote) {
        if (!paragraphIsEmpty()) {
            endParagraph();
        }
        builder_.writeNotes(false);
        atParagraphBegin_ = wasAtParagraphBegin_;
        numberIsWritten = numberWasWritten_;
        sinkChanged_ = true;
    }
}

void Writer::endInstruction()
{
    const Field field = fieldOf(instruction);
    if (field.link) {
        changeCharacter().look.link = builder_.addLink(*field.link);
    }
    changeGroup().dropsResult = field.isPageNumber;
    if (field.symbol) {
        FontTable named;
        named.beginEntry(0);
        named.entryName() = field.symbol->font;
        named.finishEntry();
        const int own = named.font(0).codePage;
        const CodePage* const page = pages_.find(own != 0 ? own : westernPage);
        const bool isByte = !field.symbol->isUnicode && field.symbol->number < 256 && page != nullptr;
        symbol_ = isByte ? page->decode(static_cast<char>(field.symbol->number)) : char32_t{field.symbol->number};
        symbol_ = symbol_ < 0x20 ? 0 : symbol_;
        symbolPlace_ = builder_.text().size();
    }
}

void Writer::endSymbol()
{
    const char32_t code = std::exchange(symbol_, 0);
    if (code != 0 && builder_.text().size() == symbolPlace_ && isInBody()) {
        std::string character;
        appendUtf8(character, code);
        putUnicode(character);
    }
}

void Writer::endPicture()
{
    auto picture = pictures.take();
    if (!picture) {
        putUnicode(pictures.alternative);
        return;
    }
    const std::uint32_t none = std::exchange(changeCharacter().look.picture, builder_.addPicture(*std::move(picture)));
    put(objectCharacter);
    changeCharacter().look.picture = none;
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
    if (out == nullptr) {
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

/// An item of a list whose number is not written gets it.
void Writer::beginParagraph()
{
    atParagraphBegin_ = false;
    if (paragraph_.list == 0 || numberIsWritten || markerRoom_ == 0) {
        return;
    }
    const ListMarker marker = lists.nextMarker(paragraph_);
    markerRoom_ -= std::min(marker.text.size(), markerRoom_);
    if (marker.text.empty() || markerRoom_ == 0) {
        return;
    }
    const CharacterState text = character_;
    if (marker.font >= 0) {
        changeCharacter().font = marker.font;
    }
    findSink();
    decoder_.breakText();
    // What a font of symbols has at a byte is in the private use area, of three bytes from EF 80 A0 to EF 83 BF.
    for (std::string_view rest = marker.text; !rest.empty();) {
        const bool isPrivate = rest.size() > 2 && rest.starts_with("\xEF") && (rest[1] & 0xFC) == 0x80;
        if (isPrivate) {
            const auto code = static_cast<char32_t>(0xF000 | (rest[1] & 0x3F) << 6 | (rest[2] & 0x3F));
            put(code);
        } else {
            builder_.text() += rest[0];
        }
        rest.remove_prefix(isPrivate ? 3 : 1);
    }
    character_ = text;
    characterChanged_ = true;
}

int Writer::codePage() const
{
    const bool isFontName
        = group_.destination == Destination::fontTable || group_.destination == Destination::fontAlternative;
    const int page = isFontName ? fonts_.entryCodePage() : fonts_.font(character_.font).codePage;
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

/// The format that the paragraph ends with, where more is known of it than its words say.
std::uint32_t Writer::endFormatIndex()
{
    const bool beginsNotes = group_.inNote && !builder_.hasNotes();
    const ListLevel* const level
        = paragraph_.leftIndent == 0 && paragraph_.firstLineIndent == 0 ? lists.levelOf(paragraph_) : nullptr;
    if (!pageBreak && !group_.inNote && level == nullptr) {
        return paragraphIndex();
    }
    ParagraphFormat format = paragraph_;
    format.pageBreakBefore = format.pageBreakBefore || pageBreak;
    format.isNote = group_.inNote;
    if (beginsNotes) {
        format.borders[Side::top] = noteRule;
    }
    if (level != nullptr) {
        format.leftIndent = level->left;
        format.firstLineIndent = level->firstLine;
    }
    return builder_.indexOf(format);
}

void Writer::endCellFormat(Twips rightEdge)
{
    CellFormat& cell = rows.cell();
    cell.rightEdge = rightEdge;
    cell.previous = rows.row().lastCell;
    rows.row().lastCell = builder_.addCell(cell);
    cell = {};
}

void Writer::endParagraph(char mark)
{
    if (atParagraphBegin_) {
        beginParagraph();
    }
    decoder_.breakText();
    const std::uint32_t format = endFormatIndex();
    builder_.endParagraph(mark, characterIndex(), format, fonts_);
    lists.endParagraph(paragraph_);
    pageBreak = false;
    numberIsWritten = false;
    atParagraphBegin_ = true;
    sinkChanged_ = true;
}

void Writer::endCell(std::uint8_t depth)
{
    if (paragraph_.tableDepth != depth) {
        changeParagraph().tableDepth = std::min(depth, deepestTable);
    }
    endParagraph(mark::cell);
}

void Writer::endRow(std::uint8_t depth)
{
    if (!paragraphIsEmpty()) {
        endCell(depth);
    }
    const std::string& text = builder_.text();
    if (!text.empty() && text.back() == mark::cell) {
        rows.row().depth = std::min(depth, deepestTable);
        builder_.endRow(rows.row());
    }
}

void Writer::beginNote()
{
    changeGroup().inNote = true;
    wasAtParagraphBegin_ = std::exchange(atParagraphBegin_, true);
    numberWasWritten_ = std::exchange(numberIsWritten, false);
    decoder_.breakText();
    changeParagraph() = {};
    builder_.writeNotes(true);
}

void Writer::putNoteMark()
{
    if (group_.inNote) {
        putUnicode(notes.mark());
    } else if (sink() != nullptr) {
        putUnicode(notes.beginMark(builder_.text().size()));
        notes.endMark(builder_.text().size());
    }
}

/// The mark before the note is not yet that of an endnote.
void Writer::makeEndnote()
{
    builder_.writeNotes(false);
    if (builder_.text().size() == notes.markEnd() && notes.markEnd() > notes.markBegin()) {
        builder_.replaceEnd(notes.markBegin(), notes.moveToEndnotes());
        notes.endMark(builder_.text().size());
    }
    builder_.writeNotes(true);
}

AttributedText Writer::take()
{
    // The outer group may itself have been a picture or a note.
    if (!paragraphIsEmpty()) {
        endParagraph();
    }
    AttributedText text = builder_.take(fonts_);
    text.defaultTab = defaultTab;
    text.largerSpaceCounts = largerSpaceCounts;
    return text;
}

} // namespace corvellane::rtf
