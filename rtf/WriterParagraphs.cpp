#include "rtf/Writer.h"

#include <algorithm>
#include <utility>

namespace corvellane::rtf {
namespace {

constexpr std::uint8_t deepestTable = 16;
constexpr Border noteRule{.style = LineStyle::solid, .width = 10, .space = 6, .isSaid = true, .color = {}};

} // namespace

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
    putMarker(marker.text);
    character_ = text;
    characterChanged_ = true;
}

/// What a font of symbols has at a byte is in the private use area, of three bytes from EF 80 A0 to EF 83 BF.
void Writer::putMarker(std::string_view marker)
{
    while (!marker.empty()) {
        const bool isPrivate = marker.size() > 2 && marker.starts_with("\xEF") && (marker[1] & 0xFC) == 0x80;
        if (isPrivate) {
            put(static_cast<char32_t>(0xF000 | (marker[1] & 0x3F) << 6 | (marker[2] & 0x3F)));
        } else {
            builder_.text() += marker[0];
        }
        marker.remove_prefix(isPrivate ? 3 : 1);
    }
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

void Writer::endCellFormat(Twips rightEdge)
{
    CellFormat& cell = rows.cell();
    cell.rightEdge = rightEdge;
    cell.previous = rows.row().lastCell;
    rows.row().lastCell = builder_.addCell(cell);
    cell = {};
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

} // namespace corvellane::rtf
