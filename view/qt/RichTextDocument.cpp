#include "view/qt/RichTextDocument.h"

#include "rtf/Blocks.h"
#include "view/qt/RichTextFormats.h"
#include "view/qt/RichTextParagraphs.h"
#include "view/qt/RichTextRuns.h"
#include "view/qt/RichTextTables.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>
#include <QTextTable>

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace corvellane::view {
namespace {

constexpr std::size_t mostGridCells = 20'000;

using Blocks = std::span<const rtf::Block>;

void prepare(QTextDocument& document, const rtf::AttributedText& text)
{
    document.clear();
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(pageMargin);
    QTextOption option = document.defaultTextOption();
    const rtf::Twips distance = text.defaultTab > 0 ? text.defaultTab : rtf::AttributedText().defaultTab;
    option.setTabStopDistance(rtf::points(distance));
    document.setDefaultTextOption(option);
}

bool isFramed(const rtf::ParagraphFormat& format)
{
    return format.shading.isSet || std::ranges::any_of(format.borders, [](const rtf::Border& border) {
        return border.style != rtf::LineStyle::none;
    });
}

bool haveOneFrame(const rtf::ParagraphFormat& one, const rtf::ParagraphFormat& other)
{
    return one.borders == other.borders && one.shading == other.shading && one.leftIndent == other.leftIndent
        && one.rightIndent == other.rightIndent;
}

/// Whether Qt would have lines of that text begin on the right: by its first letter.
bool beginsOnTheRight(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).isRightToLeft();
}

/// Around a table, in points.
struct Space {
    double above;
    double below;
};

/// A cell's format is that of its first paragraph's end too.
void addFormat(QTextTableCell cell, const QTextTableCellFormat& added)
{
    QTextCharFormat format = cell.format();
    format.merge(added);
    cell.setFormat(format);
}

/// Writes blocks of a text into a document, one after the other.
class Filler {
public:
    Filler(QTextDocument& document, const rtf::AttributedText& text)
        : text_(text)
        , cursor_(&document)
        , runs_(text)
    {
    }

    void fill();

private:
    /// The cursor stands in a paragraph that has been written, or in one that is there by itself: at the beginning, in
    /// a new cell or behind a table.
    enum class Place { written, unused, behindTable };

    const rtf::ParagraphFormat& formatOf(const rtf::Block& block) const
    {
        return text_.formats[block.paragraph.format];
    }
    const rtf::ParagraphFormat* formatAt(Blocks blocks, std::size_t index) const;
    rtf::ParagraphFormat directedFormatOf(const rtf::Block& block) const;

    void fillBlocks(Blocks blocks);
    std::size_t framedTogether(Blocks blocks) const;
    void insertFrame(Blocks blocks, const Space& space);
    void insertParagraph(const rtf::Block& block, double above, bool isFramed);
    void insertRows(const rtf::Block& table, const Space& space);
    void fillTable(const rtf::Block& table, const TableGrid& grid, const Space& space);
    QTextTableCellFormat cellFormatWithSpace(const GridCell& place, const TableGrid& grid) const;
    QTextTable* insertTable(int rows, int columns, const QTextTableFormat& format);
    void leaveTable(const QTextTable& table);

    const rtf::AttributedText& text_;
    QTextCursor cursor_;
    RunWriter runs_;
    /// Where the next table stands.
    TableRoom room_;
    Place place_ = Place::unused;
    bool isEmpty_ = true;
};

void Filler::fill()
{
    const std::vector<rtf::Block> blocks = rtf::blocksOf(text_);
    cursor_.beginEditBlock();
    fillBlocks(blocks);
    cursor_.endEditBlock();
}

const rtf::ParagraphFormat* Filler::formatAt(Blocks blocks, std::size_t index) const
{
    return index < blocks.size() && blocks[index].rows.empty() ? &formatOf(blocks[index]) : nullptr;
}

/// The format with the direction in which the text itself runs, where the file says none: indents follow it.
rtf::ParagraphFormat Filler::directedFormatOf(const rtf::Block& block) const
{
    rtf::ParagraphFormat format = formatOf(block);
    const std::string_view text(text_.text);
    if (format.direction == rtf::Direction::natural
        && beginsOnTheRight(text.substr(block.paragraph.begin, block.paragraph.end - block.paragraph.begin))) {
        format.direction = rtf::Direction::rightToLeft;
    }
    return format;
}

/// Qt gives no space to a paragraph next to a table: what stands in one has all of it.
void Filler::fillBlocks(Blocks blocks)
{
    const auto spaceAbove = [&](std::size_t index) {
        const bool isBetween = index != 0 && index < blocks.size();
        return isBetween ? spaceBetween(text_, formatAt(blocks, index - 1), formatAt(blocks, index)) : 0;
    };
    bool followsTable = false;
    for (std::size_t index = 0; index < blocks.size();) {
        const rtf::Block& block = blocks[index];
        const bool isTable = !block.rows.empty();
        const bool hasFrame = !isTable && isFramed(formatOf(block));
        const std::size_t end = index + (hasFrame ? framedTogether(blocks.subspan(index)) : 1);
        const Space space{.above = followsTable ? 0 : spaceAbove(index), .below = spaceAbove(end)};
        if (isTable) {
            insertRows(block, space);
        } else if (hasFrame) {
            insertFrame(blocks.subspan(index, end - index), space);
        } else {
            insertParagraph(block, space.above, false);
        }
        followsTable = isTable || hasFrame;
        index = end;
    }
}

std::size_t Filler::framedTogether(Blocks blocks) const
{
    const auto isOther = [&](const rtf::Block& block) {
        return !block.rows.empty() || !haveOneFrame(formatOf(blocks[0]), formatOf(block));
    };
    return static_cast<std::size_t>(std::ranges::find_if(blocks, isOther) - blocks.begin());
}

void Filler::insertFrame(Blocks blocks, const Space& space)
{
    const Indents indents = indentsOf(formatOf(blocks[0]));
    QTextTableFormat format = frameFormat();
    setSideMargins(format, directedFormatOf(blocks[0]), indents.left + std::min(0.0, indents.firstLine), indents.right);
    format.setTopMargin(space.above);
    format.setBottomMargin(space.below);
    QTextTable* const frame = insertTable(1, 1, format);
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        const bool isFirst = index == 0;
        insertParagraph(blocks[index],
            isFirst ? 0 : spaceBetween(text_, formatAt(blocks, index - 1), formatAt(blocks, index)), true);
    }
    addFormat(frame->cellAt(0, 0), frameCellFormatFor(formatOf(blocks[0])));
    leaveTable(*frame);
}

void Filler::insertParagraph(const rtf::Block& block, double above, bool isFramed)
{
    const rtf::ParagraphFormat format = directedFormatOf(block);
    Indents indents = indentsOf(format);
    if (isFramed) {
        indents = {.left = std::max(0.0, -indents.firstLine), .firstLine = indents.firstLine, .right = 0};
    }
    QTextBlockFormat blockFormat = blockFormatFor(text_, format, indents);
    blockFormat.setTopMargin(above);
    const QTextCharFormat& endFormat = runs_.formatOf(block.paragraph.endAttributes);
    isEmpty_ = block.paragraph.begin == block.paragraph.end;
    const bool wouldBeHidden = isEmpty_ && place_ == Place::behindTable;
    if (place_ != Place::written && !wouldBeHidden) {
        cursor_.setBlockFormat(blockFormat);
        // A cell's format has what is merged in it.
        cursor_.mergeBlockCharFormat(endFormat);
    } else {
        cursor_.insertBlock(blockFormat, endFormat);
    }
    for (const rtf::Run& run : text_.runsOf(block.paragraph)) {
        runs_.insert(cursor_, run);
    }
    place_ = Place::written;
}

/// A table of more places than a window can show is shown as the paragraphs in it.
void Filler::insertRows(const rtf::Block& table, const Space& space)
{
    const TableGrid grid = gridOf(table.rows);
    if (grid.columns.size() * table.rows.size() <= mostGridCells) {
        fillTable(table, grid, space);
        return;
    }
    for (const rtf::TableRow& row : table.rows) {
        for (const rtf::TableCell& cell : row.cells) {
            fillBlocks(cell.blocks);
        }
    }
}

void Filler::fillTable(const rtf::Block& table, const TableGrid& grid, const Space& space)
{
    QTextTableFormat format = tableFormatFor(grid, table.rows[0].format, room_);
    format.setTopMargin(space.above);
    format.setBottomMargin(space.below);
    QTextTable* const inserted = insertTable(grid.rows, static_cast<int>(grid.columns.size()), format);
    for (const GridCell& place : grid.cells) {
        if (place.rows > 1 || place.columns > 1) {
            inserted->mergeCells(place.firstRow, place.firstColumn, place.rows, place.columns);
        }
        const QTextTableCell cell = inserted->cellAt(place.firstRow, place.firstColumn);
        cursor_ = cell.firstCursorPosition();
        place_ = Place::unused;
        const TableRoom around = std::exchange(room_, roomIn(place, grid, room_));
        fillBlocks(place.cell->blocks);
        room_ = around;
        addFormat(cell, cellFormatWithSpace(place, grid));
    }
    leaveTable(*inserted);
}

/// The space above a cell's first paragraph and below its last is within the cell.
QTextTableCellFormat Filler::cellFormatWithSpace(const GridCell& place, const TableGrid& grid) const
{
    const Blocks blocks = place.cell->blocks;
    QTextTableCellFormat format = cellFormatFor(place, grid.rows, static_cast<int>(grid.columns.size()));
    format.setTopPadding(format.topPadding() + spaceBetween(text_, nullptr, formatAt(blocks, 0)));
    format.setBottomPadding(format.bottomPadding() + spaceBetween(text_, formatAt(blocks, blocks.size() - 1), nullptr));
    return format;
}

/// Qt hides an empty paragraph before a table, and behind one.
QTextTable* Filler::insertTable(int rows, int columns, const QTextTableFormat& format)
{
    if (place_ == Place::written && isEmpty_) {
        cursor_.insertBlock(QTextBlockFormat());
    }
    QTextTable* const table = cursor_.insertTable(rows, columns, format);
    cursor_ = table->cellAt(0, 0).firstCursorPosition();
    place_ = Place::unused;
    return table;
}

void Filler::leaveTable(const QTextTable& table)
{
    cursor_.setPosition(table.lastPosition() + 1);
    place_ = Place::behindTable;
}

} // namespace

void fillTextDocument(QTextDocument& document, const rtf::AttributedText& text)
{
    prepare(document, text);
    Filler(document, text).fill();
}

} // namespace corvellane::view
