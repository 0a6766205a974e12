#include "rtf/Writer.h"

#include "rtf/Utf8.h"

#include <algorithm>
#include <utility>

namespace corvellane::rtf {
namespace {

/// No language's text takes more bytes in UTF-8 for each of a code page's; pictographs of a font may.
constexpr std::size_t languageGrowth = 3;
constexpr std::size_t freeGrowth = 65536;
constexpr char32_t objectCharacter = 0xFFFC;

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

void Writer::endInstruction()
{
    const Field field = fieldOf(instruction);
    if (field.link) {
        changeCharacter().look.link = builder_.addLink(*field.link);
    }
    changeGroup().dropsResult = field.isPageNumber;
    if (field.symbol) {
        symbol_ = characterOf(*field.symbol);
        symbolPlace_ = builder_.text().size();
    }
}

/// The font tells by its name alone what a byte is in it. Gives 0 for no character.
char32_t Writer::characterOf(const FieldSymbol& symbol)
{
    FontTable named;
    named.beginEntry(0);
    named.entryName() = symbol.font;
    named.finishEntry();
    const int own = named.font(0).codePage;
    const CodePage* const page = pages_.find(own != 0 ? own : westernPage);
    const bool isByte = !symbol.isUnicode && symbol.number < 256 && page != nullptr;
    const char32_t code = isByte ? page->decode(static_cast<char>(symbol.number)) : char32_t{symbol.number};
    return code < 0x20 ? 0 : code;
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
