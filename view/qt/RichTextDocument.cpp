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
#include <cstddef>
#include <span>
#include <string_view>
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

/// Around a table, in points.
struct Space {
    double above;
    double below;
};

/// What fills the space of each tab in a paragraph's text. Where each of them stops is known only when it is laid out:
/// the last tab is taken to reach the last stop, and so on backwards.
std::vector<rtf::TabLeader> leadersOf(
    const rtf::AttributedText& text, const rtf::ParagraphFormat& format, std::string_view characters)
{
    std::vector<rtf::TabStop> stops = text.tabsOf(format);
    if (std::ranges::all_of(stops, [](const auto& stop) { return stop.leader == rtf::TabLeader::none; })) {
        return {};
    }
    std::ranges::sort(stops, {}, &rtf::TabStop::position);
    std::vector<rtf::TabLeader> leaders(static_cast<std::size_t>(std::ranges::count(characters, '\t')));
    const std::size_t count = std::min(leaders.size(), stops.size());
    std::transform(stops.end() - static_cast<std::ptrdiff_t>(count), stops.end(),
        leaders.end() - static_cast<std::ptrdiff_t>(count), [](const auto& stop) { return stop.leader; });
    return leaders;
}

QTextCharFormat::UnderlineStyle styleOf(rtf::TabLeader leader)
{
    switch (leader) {
    case rtf::TabLeader::none:
        return QTextCharFormat::NoUnderline;
    case rtf::TabLeader::dots:
        return QTextCharFormat::DotLine;
    case rtf::TabLeader::hyphens:
        return QTextCharFormat::DashUnderline;
    case rtf::TabLeader::line:
        return QTextCharFormat::SingleUnderline;
    }
    return QTextCharFormat::NoUnderline;
}

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
    void insertFrame(Blocks blocks, const Space& space);
    void insertParagraph(const rtf::Block& block, double above, bool isFramed);
    void insertRun(const rtf::Run& run);
    void insertText(std::string_view characters, const QTextCharFormat& format);
    void insertTab(QTextCharFormat format);
    void insertRows(const rtf::Block& table, const Space& space);
    void fillTable(const rtf::Block& table, const TableGrid& grid, const Space& space);
    QTextTableCellFormat cellFormatWithSpace(const GridCell& place, const TableGrid& grid) const;
    QTextTable* insertTable(int rows, int columns, const QTextTableFormat& format);
    void leaveTable(const QTextTable& table);

    QTextDocument& document_;
    const rtf::AttributedText& text_;
    QTextCursor cursor_;
    QList<QTextCharFormat> formats_;
    /// The cursor stands in a paragraph that is there by itself: at the beginning, in a new cell or behind a table.
    bool isUnused_ = true;
    bool isEmpty_ = true;
    /// What fills the tabs of the paragraph that is being written, where any is filled.
    std::vector<rtf::TabLeader> leaders_;
    std::size_t nextTab_ = 0;
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
    format.setLeftMargin(indents.left + std::min(0.0, indents.firstLine));
    format.setRightMargin(indents.right);
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
    const rtf::ParagraphFormat& format = formatOf(block);
    Indents indents = indentsOf(format);
    if (isFramed) {
        indents = {.left = std::max(0.0, -indents.firstLine), .firstLine = indents.firstLine, .right = 0};
    }
    QTextBlockFormat blockFormat = blockFormatFor(text_, format, indents);
    blockFormat.setTopMargin(above);
    const QTextCharFormat& endFormat = formats_[block.paragraph.endAttributes];
    if (isUnused_) {
        cursor_.setBlockFormat(blockFormat);
        // A cell's format has what is merged in it.
        cursor_.mergeBlockCharFormat(endFormat);
    } else {
        cursor_.insertBlock(blockFormat, endFormat);
    }
    const std::string_view characters
        = std::string_view(text_.text).substr(block.paragraph.begin, block.paragraph.end - block.paragraph.begin);
    leaders_ = leadersOf(text_, format, characters);
    nextTab_ = 0;
    for (const rtf::Run& run : text_.runsOf(block.paragraph)) {
        insertRun(run);
    }
    isUnused_ = false;
    isEmpty_ = block.paragraph.begin == block.paragraph.end;
}

void Filler::insertRun(const rtf::Run& run)
{
    const std::uint32_t picture = text_.attributes[run.attributes].picture;
    if (picture != 0) {
        if (const auto image = addPicture(document_, text_.pictures[picture - 1])) {
            cursor_.insertImage(*image);
        }
        return;
    }
    const QTextCharFormat& format = formats_[run.attributes];
    std::string_view rest = run.text;
    while (!leaders_.empty() && rest.find('\t') != std::string_view::npos) {
        insertText(rest.substr(0, rest.find('\t')), format);
        insertTab(format);
        rest.remove_prefix(rest.find('\t') + 1);
    }
    insertText(rest, format);
}

void Filler::insertText(std::string_view characters, const QTextCharFormat& format)
{
    if (!characters.empty()) {
        cursor_.insertText(QString::fromUtf8(characters.data(), static_cast<qsizetype>(characters.size())), format);
    }
}

/// What fills the space of a tab is drawn as its underline.
void Filler::insertTab(QTextCharFormat format)
{
    const rtf::TabLeader leader = leaders_.at(nextTab_++);
    if (leader != rtf::TabLeader::none) {
        format.setUnderlineStyle(styleOf(leader));
    }
    cursor_.insertText(QStringLiteral("\t"), format);
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
    QTextTableFormat format = tableFormatFor(grid, table.rows[0].format);
    format.setTopMargin(space.above);
    format.setBottomMargin(space.below);
    QTextTable* const inserted = insertTable(grid.rows, static_cast<int>(grid.columns.size()), format);
    for (const GridCell& place : grid.cells) {
        if (place.rows > 1 || place.columns > 1) {
            inserted->mergeCells(place.firstRow, place.firstColumn, place.rows, place.columns);
        }
        const QTextTableCell cell = inserted->cellAt(place.firstRow, place.firstColumn);
        cursor_ = cell.firstCursorPosition();
        isUnused_ = true;
        fillBlocks(place.cell->blocks);
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
