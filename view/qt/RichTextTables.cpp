#include "view/qt/RichTextTables.h"

#include "view/qt/RichTextFormats.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <ranges>

namespace corvellane::view {
namespace {

/// Edges that are no further apart are one.
constexpr rtf::Twips edgeTolerance = 40;
/// Of a cell that is described by none.
constexpr rtf::Twips usualWidth = 1440;
constexpr rtf::Twips furthestEdge = 22 * 1440;
/// A table that is as wide as a page takes all the width there is.
constexpr double fullWidth = 400;
constexpr double widestLeft = 120;

/// The right edges of a row's cells, each further right than the one before.
std::vector<rtf::Twips> edgesOf(const rtf::TableRow& row)
{
    std::vector<rtf::Twips> edges{std::clamp(row.format.left, -furthestEdge, furthestEdge)};
    for (const rtf::TableCell& cell : row.cells) {
        const rtf::Twips own
            = cell.format.rightEdge != 0 ? std::min(cell.format.rightEdge, furthestEdge) : edges.back() + usualWidth;
        edges.push_back(std::max(own, edges.back() + edgeTolerance + 1));
    }
    return edges;
}

std::vector<rtf::Twips> commonEdges(const std::vector<std::vector<rtf::Twips>>& edgesOfRows)
{
    std::vector<rtf::Twips> all;
    for (const auto& edges : edgesOfRows) {
        all.insert(all.end(), edges.begin(), edges.end());
    }
    std::ranges::sort(all);
    std::vector<rtf::Twips> common;
    for (const rtf::Twips edge : all) {
        if (common.empty() || edge - common.back() > edgeTolerance) {
            common.push_back(edge);
        }
    }
    return common;
}

/// The column that begins at an edge, or the last one before it.
int columnAt(const std::vector<rtf::Twips>& common, rtf::Twips edge)
{
    const auto next = std::ranges::upper_bound(common, edge);
    return static_cast<int>(next - common.begin()) - 1;
}

/// A cell goes on from the one before it, or above it.
bool joinsLeft(std::vector<GridCell>& cells, const GridCell& next)
{
    const bool continues = next.cell->format.horizontalMerge == rtf::CellMerge::continued && !cells.empty()
        && cells.back().firstRow == next.firstRow
        && cells.back().firstColumn + cells.back().columns == next.firstColumn;
    if (continues) {
        cells.back().columns = next.firstColumn + next.columns - cells.back().firstColumn;
    }
    return continues;
}

bool joinsAbove(std::vector<GridCell>& cells, const GridCell& next)
{
    if (next.cell->format.verticalMerge != rtf::CellMerge::continued) {
        return false;
    }
    const auto isAbove = [&](const GridCell& each) {
        return each.firstColumn == next.firstColumn && each.columns == next.columns
            && each.firstRow + each.rows == next.firstRow && each.cell->format.verticalMerge != rtf::CellMerge::none;
    };
    auto upwards = std::views::reverse(cells);
    const auto above = std::ranges::find_if(upwards, isAbove);
    if (above == upwards.end()) {
        return false;
    }
    ++(*above).rows;
    return true;
}

QTextFrameFormat::BorderStyle styleOf(rtf::LineStyle style)
{
    switch (style) {
    case rtf::LineStyle::none:
        return QTextFrameFormat::BorderStyle_None;
    case rtf::LineStyle::solid:
        return QTextFrameFormat::BorderStyle_Solid;
    case rtf::LineStyle::twofold:
        return QTextFrameFormat::BorderStyle_Double;
    case rtf::LineStyle::dotted:
        return QTextFrameFormat::BorderStyle_Dotted;
    case rtf::LineStyle::dashed:
        return QTextFrameFormat::BorderStyle_Dashed;
    }
    return QTextFrameFormat::BorderStyle_None;
}

/// Two lines need three pixels to be seen as two.
double widthOf(const rtf::Border& border)
{
    const double least = border.style == rtf::LineStyle::twofold ? 3 : 1;
    return border.style == rtf::LineStyle::none ? 0 : std::clamp(rtf::points(border.width), least, 6.0);
}

struct SideProperties {
    QTextFormat::Property width;
    QTextFormat::Property style;
    QTextFormat::Property brush;
    QTextFormat::Property padding;
};

/// By rtf::Side.
constexpr std::array<SideProperties, 4> sides{{
    {QTextFormat::TableCellTopBorder, QTextFormat::TableCellTopBorderStyle, QTextFormat::TableCellTopBorderBrush,
        QTextFormat::TableCellTopPadding},
    {QTextFormat::TableCellLeftBorder, QTextFormat::TableCellLeftBorderStyle, QTextFormat::TableCellLeftBorderBrush,
        QTextFormat::TableCellLeftPadding},
    {QTextFormat::TableCellBottomBorder, QTextFormat::TableCellBottomBorderStyle,
        QTextFormat::TableCellBottomBorderBrush, QTextFormat::TableCellBottomPadding},
    {QTextFormat::TableCellRightBorder, QTextFormat::TableCellRightBorderStyle, QTextFormat::TableCellRightBorderBrush,
        QTextFormat::TableCellRightPadding},
}};

void setBorder(QTextTableCellFormat& format, std::size_t side, const rtf::Border& border)
{
    if (border.style != rtf::LineStyle::none) {
        format.setProperty(sides.at(side).width, widthOf(border));
        format.setProperty(sides.at(side).style, static_cast<int>(styleOf(border.style)));
        format.setProperty(
            sides.at(side).brush, QBrush(border.color.isSet ? colorOf(border.color) : QColor(Qt::black)));
    }
}

/// A cell of whose border nothing is said has that of its row: the outer one at the row's ends, or one between cells.
rtf::Border borderOf(const GridCell& cell, std::size_t side, int rows, int columns)
{
    const rtf::Border& own = cell.cell->format.borders.at(side);
    if (own.isSaid) {
        return own;
    }
    const rtf::RowFormat& row = cell.row->format;
    const std::array<bool, 4> isOuter{cell.firstRow == 0, cell.firstColumn == 0, cell.firstRow + cell.rows == rows,
        cell.firstColumn + cell.columns == columns};
    const bool isBetweenRows = side == rtf::Side::top || side == rtf::Side::bottom;
    return isOuter.at(side) ? row.borders.at(side) : row.innerBorders.at(isBetweenRows ? 0 : 1);
}

Qt::Alignment alignmentOf(const rtf::RowFormat& row)
{
    if (row.alignment == rtf::Alignment::centre) {
        return Qt::AlignHCenter;
    }
    const bool beginsRight = row.alignment == rtf::Alignment::natural && row.rightToLeft;
    return beginsRight || row.alignment == rtf::Alignment::right ? Qt::AlignRight : Qt::AlignLeft;
}

/// The indent counts where the table begins at it. Qt takes what is not on the left for wider by the page's margin.
void place(QTextTableFormat& format, const TableGrid& grid, const rtf::RowFormat& firstRow)
{
    const Qt::Alignment alignment = alignmentOf(firstRow);
    const double indent = std::clamp(grid.left, 0.0, widestLeft);
    const bool isOutermost = firstRow.depth <= 1;
    format.setAlignment(alignment);
    if (alignment == Qt::AlignLeft) {
        format.setLeftMargin(firstRow.rightToLeft ? 0 : indent);
    } else {
        const bool isIndented = alignment == Qt::AlignRight && firstRow.rightToLeft;
        format.setRightMargin((isIndented ? indent : 0) + (isOutermost ? pageMargin : 0));
    }
}

QTextCharFormat::VerticalAlignment alignmentOf(rtf::CellAlignment alignment)
{
    switch (alignment) {
    case rtf::CellAlignment::top:
        return QTextCharFormat::AlignTop;
    case rtf::CellAlignment::centre:
        return QTextCharFormat::AlignMiddle;
    case rtf::CellAlignment::bottom:
        return QTextCharFormat::AlignBottom;
    }
    return QTextCharFormat::AlignTop;
}

/// Qt has a table's first column on the left whatever its direction.
void mirror(TableGrid& grid)
{
    const auto columns = static_cast<int>(grid.columns.size());
    std::ranges::reverse(grid.columns);
    for (GridCell& cell : grid.cells) {
        cell.firstColumn = columns - cell.firstColumn - cell.columns;
    }
}

QTextTableFormat plainTable()
{
    QTextTableFormat format;
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    return format;
}

} // namespace

TableGrid gridOf(const std::vector<rtf::TableRow>& rows)
{
    std::vector<std::vector<rtf::Twips>> edgesOfRows;
    std::ranges::transform(rows, std::back_inserter(edgesOfRows), edgesOf);
    const std::vector<rtf::Twips> common = commonEdges(edgesOfRows);
    TableGrid grid{
        .rows = static_cast<int>(rows.size()), .columns = {}, .left = rtf::points(common.front()), .cells = {}};
    for (std::size_t index = 1; index < common.size(); ++index) {
        grid.columns.push_back(rtf::points(common[index] - common[index - 1]));
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t cell = 0; cell < rows[row].cells.size(); ++cell) {
            const int begin = columnAt(common, edgesOfRows[row][cell]);
            const int end = columnAt(common, edgesOfRows[row][cell + 1]);
            const GridCell next{&rows[row].cells[cell], &rows[row], static_cast<int>(row), begin, 1, end - begin};
            if (!joinsLeft(grid.cells, next) && !joinsAbove(grid.cells, next)) {
                grid.cells.push_back(next);
            }
        }
    }
    if (rows.front().format.rightToLeft) {
        mirror(grid);
    }
    return grid;
}

QTextTableFormat tableFormatFor(const TableGrid& grid, const rtf::RowFormat& firstRow)
{
    double width = 0;
    for (const double column : grid.columns) {
        width += column;
    }
    QTextTableFormat format = plainTable();
    QList<QTextLength> lengths;
    for (const double column : grid.columns) {
        lengths.append(QTextLength(QTextLength::PercentageLength, 100 * column / width));
    }
    format.setColumnWidthConstraints(lengths);
    if (width + grid.left > fullWidth) {
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    } else {
        place(format, grid, firstRow);
        format.setWidth(QTextLength(QTextLength::FixedLength, width + format.leftMargin() + format.rightMargin()));
    }
    return format;
}

QTextTableCellFormat cellFormatFor(const GridCell& cell, int rowsOfTable, int columnsOfTable)
{
    QTextTableCellFormat format;
    for (std::size_t side = 0; side < sides.size(); ++side) {
        setBorder(format, side, borderOf(cell, side, rowsOfTable, columnsOfTable));
        const std::int16_t own = cell.cell->format.inset.at(side);
        const double inset = rtf::points(own >= 0 ? own : cell.row->format.inset.at(side));
        format.setProperty(sides.at(side).padding, std::clamp(inset, 1.0, 36.0));
    }
    if (cell.cell->format.shading.isSet) {
        format.setBackground(colorOf(cell.cell->format.shading));
    }
    format.setVerticalAlignment(alignmentOf(cell.cell->format.alignment));
    return format;
}

QTextTableFormat frameFormat()
{
    QTextTableFormat format = plainTable();
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    return format;
}

QTextTableCellFormat frameCellFormatFor(const rtf::ParagraphFormat& paragraph)
{
    QTextTableCellFormat format;
    for (std::size_t side = 0; side < sides.size(); ++side) {
        const rtf::Border& border = paragraph.borders.at(side);
        setBorder(format, side, border);
        format.setProperty(
            sides.at(side).padding, border.style != rtf::LineStyle::none ? static_cast<double>(border.space) : 0.0);
    }
    if (paragraph.shading.isSet) {
        format.setBackground(colorOf(paragraph.shading));
    }
    return format;
}

} // namespace corvellane::view
