#include "rtf/Blocks.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace corvellane::rtf {
namespace {

using Blocks = std::vector<Block>;

/// Sorts paragraphs into cells, cells into rows and rows into tables, by the marks that end them.
class Sorter {
public:
    explicit Sorter(const AttributedText& text)
        : text_(text)
    {
    }

    Blocks take();

private:
    /// What is open at a depth of tables: the blocks of the next cell, and the cells before it.
    struct Level {
        Blocks blocks;
        std::vector<TableCell> cells;
    };

    void addParagraph(const Paragraph& paragraph);
    void endCell(std::size_t depth);
    void endRow(const RowFormat& format);
    void giveUpRows(std::size_t depth);

    const AttributedText& text_;
    std::vector<Level> levels_{1};
};

void moveTo(Blocks& to, Blocks& from)
{
    to.insert(to.end(), std::make_move_iterator(from.begin()), std::make_move_iterator(from.end()));
    from.clear();
}

/// All that stands deeper comes to `depth`.
void Sorter::giveUpRows(std::size_t depth)
{
    for (; levels_.size() > depth + 1; levels_.pop_back()) {
        Level& deepest = levels_.back();
        Blocks& to = levels_[levels_.size() - 2].blocks;
        for (TableCell& cell : deepest.cells) {
            moveTo(to, cell.blocks);
        }
        moveTo(to, deepest.blocks);
    }
}

void Sorter::addParagraph(const Paragraph& paragraph)
{
    const std::size_t depth = text_.formats[paragraph.format].tableDepth;
    giveUpRows(depth);
    levels_.resize(std::max(levels_.size(), depth + 1));
    Blocks& blocks = levels_[depth].blocks;
    const bool endsCell = text_.text[paragraph.end] == mark::cell;
    const bool onlyEndsCell
        = endsCell && paragraph.begin == paragraph.end && !blocks.empty() && !blocks.back().rows.empty();
    if (!onlyEndsCell) {
        blocks.push_back({.paragraph = paragraph, .rows = {}});
    }
    if (endsCell) {
        endCell(depth);
    }
}

void Sorter::endCell(std::size_t depth)
{
    Level& level = levels_[depth];
    level.cells.push_back({.format = {}, .blocks = std::exchange(level.blocks, {})});
}

/// Some writers end more cells than a row has, which are empty.
void dropSurplus(std::vector<TableCell>& cells, std::size_t wanted)
{
    const auto isEmpty = [](const TableCell& cell) {
        const Block& block = cell.blocks[0];
        return cell.blocks.size() == 1 && block.rows.empty() && block.paragraph.begin == block.paragraph.end;
    };
    while (wanted != 0 && cells.size() > wanted && isEmpty(cells.back())) {
        cells.pop_back();
    }
}

void Sorter::endRow(const RowFormat& format)
{
    const std::size_t depth = format.depth;
    giveUpRows(depth);
    if (levels_.size() <= depth || levels_[depth].cells.empty()) {
        return;
    }
    TableRow row{.format = format, .cells = std::exchange(levels_[depth].cells, {})};
    const std::vector<CellFormat> formats = text_.cellsOf(format);
    dropSurplus(row.cells, formats.size());
    for (std::size_t index = 0; index < std::min(formats.size(), row.cells.size()); ++index) {
        row.cells[index].format = formats[index];
    }
    Blocks& around = levels_[depth - 1].blocks;
    if (around.empty() || around.back().rows.empty()) {
        around.emplace_back();
    }
    around.back().rows.push_back(std::move(row));
}

Blocks Sorter::take()
{
    std::size_t row = 0;
    std::size_t place = 0;
    const auto endRows = [&] {
        for (; place < text_.text.size() && text_.text[place] == mark::row; ++place) {
            endRow(text_.rowFormats[text_.rows[row++]]);
        }
    };
    for (const Paragraph& paragraph : text_.paragraphs()) {
        endRows();
        addParagraph(paragraph);
        place = paragraph.end + 1;
    }
    endRows();
    giveUpRows(0);
    return std::move(levels_[0].blocks);
}

} // namespace

std::vector<Block> blocksOf(const AttributedText& text)
{
    return Sorter(text).take();
}

} // namespace corvellane::rtf
