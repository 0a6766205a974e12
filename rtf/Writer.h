#pragma once

#include "rtf/CodePage.h"
#include "rtf/ColorTable.h"
#include "rtf/FontTable.h"
#include "rtf/State.h"
#include "rtf/TextBuilder.h"
#include "rtf/TextDecoder.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvellane::rtf {

/// What is in effect while RTF is carried out, and the text that comes of it. Control words act on it; what one leaves
/// for others is public.
class Writer {
public:
    /// Room is set aside for `expectedLength` bytes of text.
    explicit Writer(std::size_t expectedLength)
        : builder_(expectedLength)
    {
    }

    const GroupState& group() const { return group_; }
    const CharacterState& character() const { return character_; }
    const ParagraphState& paragraph() const { return paragraph_; }
    const FontTable& fonts() const { return fonts_; }

    GroupState& changeGroup();
    CharacterState& changeCharacter();
    ParagraphState& changeParagraph();
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
    /// Bytes that are written as hexadecimal or escaped.
    void putBytes(std::string_view bytes);
    /// Raw bytes; `ascii` as the token has it.
    void putText(std::string_view bytes, bool ascii);
    /// Puts a byte where it ends a character that the last raw byte began; false where it does not.
    bool putTrailByte(char byte);
    bool awaitsTrail() const { return decoder_.awaitsTrail(); }
    /// What comes next continues no multi-byte character.
    void breakBytes() { decoder_.breakBytes(); }

    /// Parts the cells that have ended from what comes next, where text is wanted.
    void partCells() { sink(); }
    void addTab(std::int32_t position);
    bool paragraphIsEmpty() const { return builder_.paragraphIsEmpty(); }
    void endParagraph();

    /// The text, after the outer group is closed.
    AttributedText take() { return builder_.take(fonts_); }

    ColorTable colors;
    bool isCocoa = false;
    /// What is left of the fallback of the last \u, in characters.
    std::int32_t fallback = 0;
    /// The kind of the next tab stop.
    TabKind tabKind = TabKind::left;
    bool pageBreak = false;
    bool nestedRowEnded = false;
    /// Cells that have ended in this row since its last text.
    std::size_t endedCells = 0;
    /// What the last field is to do.
    std::string instruction;

private:
    std::string* sink();
    void findSink();
    int codePage() const;
    std::uint32_t characterIndex();
    std::uint32_t paragraphIndex();
    void restore(const GroupState& state);

    TextBuilder builder_;
    TextDecoder decoder_;
    CodePages pages_;
    FontTable fonts_;
    GroupStack groups_;

    /// What is in effect; `character` and `paragraph` of the group's state are up to date unless changed.
    GroupState group_;
    CharacterState character_;
    ParagraphState paragraph_;
    bool characterChanged_ = true;
    bool paragraphChanged_ = true;

    /// Where text goes, null for nowhere, and how its bytes are read; found anew when something has changed.
    std::string* sink_ = nullptr;
    CodePage* page_ = nullptr;
    bool sinkChanged_ = true;

    int documentPage_ = 1252;
    std::string passedText_;
};

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

inline ParagraphState& Writer::changeParagraph()
{
    paragraphChanged_ = true;
    return paragraph_;
}

inline FontTable& Writer::changeFonts()
{
    sinkChanged_ = true;
    return fonts_;
}

} // namespace corvellane::rtf
