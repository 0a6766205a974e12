#include "view/qt/RichTextDocument.h"

#include "rtf/Blocks.h"
#include "view/qt/RichTextFormats.h"
#include "view/qt/RichTextPictures.h"
#include "view/qt/RichTextTables.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>
#include <QTextTable>

#include <algorithm>
#include <span>
#include <vector>

namespace corvellane::view {
namespace {

constexpr double pageMargin = 8;
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

/// Writes blocks of a text into a document, one after the other.
class Filler {
public:
    Filler(QTextDocument& document, const rtf::AttributedText& text)
        : document_(document)
        , text_(text)
        , cursor_(&document)
    {
        for (const rtf::TextAttributes& attributes : text.attributes) {
            formats_.append(charFormatFor(attributes, text));
        }
    }

    void fill();

private:
    const rtf::ParagraphFormat& formatOf(const rtf::Block& block) const
    {
        return text_.formats[block.paragraph.format];
    }
    const rtf::ParagraphFormat* formatAt(Blocks blocks, std::size_t index) const;

    void fillBlocks(Blocks blocks);
    std::size_t framedTogether(Blocks blocks) const;
    void insertFrame(Blocks blocks, double above, double below);
    void insertParagraph(const rtf::Block& block, double above, double below, bool isFramed);
    void insertRun(const rtf::Run& run);
    void insertRows(const rtf::Block& table);
    void fillTable(const rtf::Block& table, const TableGrid& grid);
    QTextTable* insertTable(int rows, int columns, const QTextTableFormat& format);
    void leaveTable(const QTextTable& table);

    QTextDocument& document_;
    const rtf::AttributedText& text_;
    QTextCursor cursor_;
    QList<QTextCharFormat> formats_;
    /// The cursor stands in a paragraph that is there by itself: at the beginning, in a new cell or behind a table.
    bool isUnused_ = true;
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

/// In a cell there is space above the first paragraph and below the last, in the document there is none.
void Filler::fillBlocks(Blocks blocks)
{
    for (std::size_t index = 0; index < blocks.size();) {
        const rtf::Block& block = blocks[index];
        if (!block.rows.empty()) {
            insertRows(block);
            ++index;
            continue;
        }
        const bool isFirst = index == 0 && cursor_.currentTable() == nullptr;
        const double above = isFirst ? 0 : spaceBetween(text_, formatAt(blocks, index - 1), &formatOf(block));
        const std::size_t count = isFramed(formatOf(block)) ? framedTogether(blocks.subspan(index)) : 1;
        const bool belowIsParagraph = formatAt(blocks, index + count) != nullptr;
        const double below = belowIsParagraph ? 0 : spaceBetween(text_, &formatOf(blocks[index + count - 1]), nullptr);
        if (isFramed(formatOf(block))) {
            insertFrame(blocks.subspan(index, count), above, below);
        } else {
            insertParagraph(block, above, below, false);
        }
        index += count;
    }
}

std::size_t Filler::framedTogether(Blocks blocks) const
{
    const auto isOther = [&](const rtf::Block& block) {
        return !block.rows.empty() || !haveOneFrame(formatOf(blocks[0]), formatOf(block));
    };
    return static_cast<std::size_t>(std::ranges::find_if(blocks, isOther) - blocks.begin());
}

void Filler::insertFrame(Blocks blocks, double above, double below)
{
    const Indents indents = indentsOf(formatOf(blocks[0]));
    QTextTableFormat format = frameFormat();
    format.setLeftMargin(indents.left + std::min(0.0, indents.firstLine));
    format.setRightMargin(indents.right);
    format.setTopMargin(above);
    format.setBottomMargin(below);
    QTextTable* const frame = insertTable(1, 1, format);
    frame->cellAt(0, 0).setFormat(frameCellFormatFor(formatOf(blocks[0])));
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        const double space = index == 0 ? 0 : spaceBetween(text_, formatAt(blocks, index - 1), formatAt(blocks, index));
        insertParagraph(blocks[index], space, 0, true);
    }
    leaveTable(*frame);
}

void Filler::insertParagraph(const rtf::Block& block, double above, double below, bool isFramed)
{
    const rtf::ParagraphFormat& format = formatOf(block);
    Indents indents = indentsOf(format);
    if (isFramed) {
        indents = {.left = std::max(0.0, -indents.firstLine), .firstLine = indents.firstLine, .right = 0};
    }
    QTextBlockFormat blockFormat = blockFormatFor(text_, format, indents);
    blockFormat.setTopMargin(above);
    blockFormat.setBottomMargin(below);
    const QTextCharFormat& endFormat = formats_[block.paragraph.endAttributes];
    if (isUnused_) {
        cursor_.setBlockFormat(blockFormat);
        // A new cell's format is that of its first paragraph's end.
        cursor_.mergeBlockCharFormat(endFormat);
    } else {
        cursor_.insertBlock(blockFormat, endFormat);
    }
    for (const rtf::Run& run : text_.runsOf(block.paragraph)) {
        insertRun(run);
    }
    isUnused_ = false;
    isEmpty_ = block.paragraph.begin == block.paragraph.end;
}

void Filler::insertRun(const rtf::Run& run)
{
    const std::uint32_t picture = text_.attributes[run.attributes].picture;
    if (picture == 0) {
        const auto length = static_cast<qsizetype>(run.text.size());
        cursor_.insertText(QString::fromUtf8(run.text.data(), length), formats_[run.attributes]);
    } else if (const auto image = addPicture(document_, text_.pictures[picture - 1])) {
        cursor_.insertImage(*image);
    }
}

/// A table of more places than a window can show is shown as the paragraphs in it.
void Filler::insertRows(const rtf::Block& table)
{
    const TableGrid grid = gridOf(table.rows);
    if (grid.columns.size() * table.rows.size() <= mostGridCells) {
        fillTable(table, grid);
        return;
    }
    for (const rtf::TableRow& row : table.rows) {
        for (const rtf::TableCell& cell : row.cells) {
            fillBlocks(cell.blocks);
        }
    }
}

void Filler::fillTable(const rtf::Block& table, const TableGrid& grid)
{
    const auto columns = static_cast<int>(grid.columns.size());
    QTextTable* const inserted = insertTable(grid.rows, columns, tableFormatFor(grid, table.rows[0].format));
    for (const GridCell& place : grid.cells) {
        if (place.rows > 1 || place.columns > 1) {
            inserted->mergeCells(place.firstRow, place.firstColumn, place.rows, place.columns);
        }
        QTextTableCell cell = inserted->cellAt(place.firstRow, place.firstColumn);
        QTextCharFormat format = cell.format();
        format.merge(cellFormatFor(place, grid.rows, columns));
        cell.setFormat(format);
        cursor_ = cell.firstCursorPosition();
        isUnused_ = true;
        fillBlocks(place.cell->blocks);
    }
    leaveTable(*inserted);
}

/// Qt hides an empty paragraph before a table, and behind one.
QTextTable* Filler::insertTable(int rows, int columns, const QTextTableFormat& format)
{
    if (!isUnused_ && isEmpty_) {
        cursor_.insertBlock(QTextBlockFormat());
    }
    QTextTable* const table = cursor_.insertTable(rows, columns, format);
    cursor_ = table->cellAt(0, 0).firstCursorPosition();
    isUnused_ = true;
    return table;
}

void Filler::leaveTable(const QTextTable& table)
{
    cursor_.setPosition(table.lastPosition() + 1);
    isUnused_ = true;
}

} // namespace

void fillTextDocument(QTextDocument& document, const rtf::AttributedText& text)
{
    prepare(document, text);
    Filler(document, text).fill();
}

} // namespace corvellane::view
