#pragma once

#include "rtf/AttributedText.h"
#include "rtf/FontTable.h"
#include "rtf/Interner.h"
#include "rtf/State.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane::rtf {

/// Builds attributed text run by run and paragraph by paragraph out of states of formatting; beside it the notes, which
/// come after it.
class TextBuilder {
public:
    /// Room is set aside for a file of `size` bytes; it costs memory only as it is filled.
    explicit TextBuilder(std::size_t size);

    std::uint32_t indexOf(const CharacterState& state) { return characters_.index(state); }
    std::uint32_t indexOf(const ParagraphFormat& format) { return paragraphs_.index(format); }
    const CharacterState& character(std::uint32_t index) const { return characters_[index]; }
    const ParagraphFormat& paragraph(std::uint32_t index) const { return paragraphs_[index]; }

    /// The text to append to, once a run is begun.
    std::string& text() { return part_->text; }
    const std::string& text() const { return part_->text; }

    /// Writes `end` in the place of what stands from there on, none of which ends a paragraph.
    void replaceEnd(std::size_t from, std::string_view end);

    /// What is appended from here on looks like that; true when this is not how the text before looks.
    bool beginRun(std::uint32_t character, const FontTable& fonts);

    /// Ends the paragraph in that character and paragraph formatting.
    void endParagraph(char mark, std::uint32_t character, std::uint32_t paragraph, const FontTable& fonts);

    /// Ends a row of cells that have ended.
    void endRow(const RowFormat& row);

    bool paragraphIsEmpty() const { return part_->text.size() == part_->paragraphBegin; }

    /// From here on the text is one of the notes, or none of them.
    void writeNotes(bool areWritten) { part_ = areWritten ? &notes_ : &body_; }
    /// A paragraph of the notes has ended.
    bool hasNotes() const { return notes_.paragraphBegin != 0; }

    /// The last tab stop of a paragraph whose last one was `stop.previous` and which gets one more.
    std::uint32_t addTab(TabStop stop);

    /// The last cell of a row whose last one was `cell.previous` and which gets one more.
    std::uint32_t addCell(CellFormat cell);

    /// The numbers by which TextAttributes know a link and a picture.
    std::uint32_t addLink(std::string target);
    std::uint32_t addPicture(Picture picture);

    /// The whole text; nothing may be called after it.
    AttributedText take(FontTable& fonts);

private:
    struct Part {
        std::string text;
        std::vector<Stretch> runs;
        std::vector<Stretch> formats;
        std::vector<std::uint32_t> rows;
        std::uint32_t look = 0;
        std::size_t paragraphBegin = 0;
    };

    std::uint32_t lookOf(std::uint32_t character, const FontTable& fonts);
    std::uint32_t addLookOf(std::uint32_t character, const FontTable& fonts);
    std::uint32_t addOtherTab(TabStop stop);
    void endRun();
    void extend(std::vector<Stretch>& stretches, std::uint32_t end, std::uint32_t index) const;
    void appendNotes();

    /// How many runs there are at most, and stretches of one format.
    std::size_t most_;
    Part body_;
    Part notes_;
    Part* part_ = &body_;
    Interner<CharacterState> characters_;
    Interner<ParagraphFormat> paragraphs_;
    Interner<TextAttributes> looks_;
    /// 1 + the index of the look of a character state, 0 where not yet known.
    std::vector<std::uint32_t> looksOfCharacters_;
    Interner<TabStop> tabs_;
    /// The tab stop that followed each one last, 0 for none; at the index 0 what followed none.
    std::vector<std::uint32_t> nextTabs_{0};
    Interner<RowFormat> rowFormats_;
    Interner<CellFormat> cellFormats_;
    std::vector<std::string> links_;
    std::vector<Picture> pictures_;
};

inline std::uint32_t TextBuilder::lookOf(std::uint32_t character, const FontTable& fonts)
{
    const std::uint32_t known = character < looksOfCharacters_.size() ? looksOfCharacters_[character] : 0;
    return known != 0 ? known - 1 : addLookOf(character, fonts);
}

inline bool TextBuilder::beginRun(std::uint32_t character, const FontTable& fonts)
{
    const std::uint32_t look = lookOf(character, fonts);
    if (look == part_->look) {
        return false;
    }
    endRun();
    part_->look = look;
    return true;
}

/// Paragraph after paragraph sets the same stops: the one that came next last time is tried before any other.
inline std::uint32_t TextBuilder::addTab(TabStop stop)
{
    const std::uint32_t next = nextTabs_[stop.previous];
    if (next != 0) {
        const TabStop& known = tabs_[next - 1];
        if (known.position == stop.position && known.kind == stop.kind && known.leader == stop.leader) {
            return next;
        }
    }
    return addOtherTab(stop);
}

} // namespace corvellane::rtf
