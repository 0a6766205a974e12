#pragma once

#include "rtf/CodePage.h"
#include "rtf/ColorTable.h"
#include "rtf/Field.h"
#include "rtf/FontTable.h"
#include "rtf/Lists.h"
#include "rtf/Notes.h"
#include "rtf/Pictures.h"
#include "rtf/RowLayout.h"
#include "rtf/State.h"
#include "rtf/TextBuilder.h"
#include "rtf/TextDecoder.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace corvellane::rtf {

/// What is in effect while RTF is carried out, and the text that comes of it. Control words act on it; what one leaves
/// for others is public.
class Writer {
public:
    /// For a file of these bytes, which outlive it; what the raw ones are is found out where it is not told.
    Writer(std::string_view bytes, std::optional<bool> rawIsUnicode);

    const GroupState& group() const { return group_; }
    const CharacterState& character() const { return character_; }
    const ParagraphFormat& paragraph() const { return paragraph_; }
    const FontTable& fonts() const { return fonts_; }
    /// Text is the agreement's own, and is seen.
    bool isInBody() const { return group_.destination == Destination::body && !character_.hidden; }

    GroupState& changeGroup();
    void setFallbackLength(std::int32_t length) { group_.fallbackLength = length; }
    CharacterState& changeCharacter();
    ParagraphFormat& changeParagraph();
    FontTable& changeFonts();

    /// The document's code page, where it can be had.
    void setCodePage(int number);
    bool hasCodePage(int number) { return number > 0 && pages_.find(number) != nullptr; }

    void openGroup();
    void closeGroup();
    void skipGroup() { changeGroup().destination = Destination::skipped; }
    std::size_t depth() const { return groups_.depth(); }

    /// A character or a surrogate.
    void put(char32_t code);
    /// A character that the font of East Asian text shows.
    void putEastAsian(char32_t code);
    /// Characters of UTF-8.
    void putUnicode(std::string_view characters);
    /// Bytes that are written as hexadecimal or escaped.
    void putBytes(std::string_view bytes);
    /// Raw bytes; `ascii` as the token has it.
    void putText(std::string_view bytes, bool ascii);
    /// Puts a byte where it ends a character that the last raw byte began; false where it does not.
    bool putTrailByte(char byte);
    bool awaitsTrail() const { return decoder_.awaitsTrail(); }
    /// The file's raw bytes are UTF-8, whatever code page is in effect. The first time it looks at all of them.
    bool rawIsUnicode();
    /// There is more text than those bytes.
    bool textIsLongerThan(std::size_t bytes) const { return builder_.text().size() > bytes; }
    /// What is written may be longer. Outside the body there is a bound that no name, instruction or description comes
    /// to in a file that is written for its text.
    bool hasRoom();
    /// What comes next continues no multi-byte character.
    void breakBytes() { decoder_.breakBytes(); }

    void addTab(Twips position);
    /// Ends what is described of a cell, which itself ends there.
    void endCellFormat(Twips rightEdge);
    bool paragraphIsEmpty() const { return builder_.paragraphIsEmpty(); }
    void endParagraph(char mark = mark::paragraph);
    /// Ends a cell that stands in `depth` tables, and with it the paragraph.
    void endCell(std::uint8_t depth);
    void endRow(std::uint8_t depth);

    void beginNote();
    /// The mark of a note, in the text or in the note.
    void putNoteMark();
    void makeEndnote();

    /// The text, after the outer group is closed.
    AttributedText take();

    ColorTable colors;
    Lists lists;
    Notes notes;
    Pictures pictures;
    RowLayout rows;
    bool isCocoa = false;
    /// What is left of the fallback of the last \u, in characters.
    std::int32_t fallback = 0;
    /// The next tab stop.
    TabKind tabKind = TabKind::left;
    TabLeader tabLeader = TabLeader::none;
    Twips defaultTab = 720;
    bool largerSpaceCounts = false;
    bool pageBreak = false;
    /// The number of the item that the paragraph is stands in the file.
    bool numberIsWritten = false;
    /// What borders are described.
    BorderTarget borderTarget = BorderTarget::none;
    /// By Side.
    std::uint8_t borderSides = 0;
    /// Which of the fonts of the text the next one is.
    bool fontIsEastAsian = false;
    /// What the last field is to do.
    std::string instruction;

private:
    std::string* sink();
    void findSink();
    void findPage();
    std::string* sinkOutsideBody();
    void putOtherText(std::string_view bytes, bool ascii);
    int codePage() const;
    std::uint32_t characterIndex();
    std::uint32_t paragraphIndex();
    std::uint32_t endFormatIndex();
    void restore(const GroupState& state);
    void leave(const GroupState& around);
    void endInstruction();
    char32_t characterOf(const FieldSymbol& symbol);
    void endSymbol();
    void endPicture();
    void beginParagraph();
    void putMarker(std::string_view marker);

    TextBuilder builder_;
    TextDecoder decoder_;
    CodePages pages_;
    FontTable fonts_;
    GroupStack groups_;

    /// What is in effect; `character` and `paragraph` of the group's state are up to date unless changed.
    GroupState group_;
    CharacterState character_;
    ParagraphFormat paragraph_;
    bool characterChanged_ = true;
    bool paragraphChanged_ = true;

    /// Where text goes, null for nowhere, and how its bytes are read; found anew when something has changed.
    std::string* sink_ = nullptr;
    CodePage* page_ = nullptr;
    /// What page was asked for, 0 for none.
    int pageNumber_ = 0;
    bool sinkChanged_ = true;

    std::string_view bytes_;
    int documentPage_ = 1252;
    /// None while no raw byte has mattered.
    std::optional<bool> rawIsUnicode_;
    bool atParagraphBegin_ = true;
    /// The same of the text around a note.
    bool wasAtParagraphBegin_ = true;
    bool numberWasWritten_ = false;
    /// How many bytes of list markers the text may get yet; at 0 no more are made.
    std::size_t markerRoom_;
    /// How long the text may get by bytes of code pages.
    std::size_t mostText_;
    /// The character of a field, which stands where its result is empty: the text has not grown from there.
    char32_t symbol_ = 0;
    std::size_t symbolPlace_ = 0;
    std::string passedText_;
};

inline std::string* Writer::sink()
{
    if (sinkChanged_) {
        findSink();
    }
    return sink_;
}

inline void Writer::putText(std::string_view bytes, bool ascii)
{
    std::string* const out = sink();
    if (out != nullptr && ascii && page_->hasAscii() && !decoder_.awaitsTrail()) {
        out->append(bytes);
    } else {
        putOtherText(bytes, ascii);
    }
}

inline bool Writer::hasRoom()
{
    constexpr std::size_t mostOutsideBody = 65536;
    const std::string* const out = sink();
    return group_.destination == Destination::body || out == nullptr || out->size() < mostOutsideBody;
}

inline GroupState& Writer::changeGroup()
{
    sinkChanged_ = true;
    return group_;
}

inline CharacterState& Writer::changeCharacter()
{
    characterChanged_ = true;
    sinkChanged_ = true;
    return character_;
}

inline ParagraphFormat& Writer::changeParagraph()
{
    paragraphChanged_ = true;
    return paragraph_;
}

inline FontTable& Writer::changeFonts()
{
    sinkChanged_ = true;
    return fonts_;
}

inline std::uint32_t Writer::characterIndex()
{
    if (characterChanged_) {
        group_.character = builder_.indexOf(character_);
        characterChanged_ = false;
    }
    return group_.character;
}

inline std::uint32_t Writer::paragraphIndex()
{
    if (paragraphChanged_) {
        group_.paragraph = builder_.indexOf(paragraph_);
        paragraphChanged_ = false;
    }
    return group_.paragraph;
}

inline void Writer::addTab(Twips position)
{
    ParagraphFormat& format = changeParagraph();
    format.lastTab = builder_.addTab({.position = position,
        .previous = format.lastTab,
        .kind = std::exchange(tabKind, TabKind::left),
        .leader = std::exchange(tabLeader, TabLeader::none)});
}

} // namespace corvellane::rtf
