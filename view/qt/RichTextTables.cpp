#include "view/qt/RichTextTables.h"

#include "view/qt/RichTextFormats.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace corvellane::view {
namespace {

constexpr double widestLeft = 120;

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

/// Between the cell's edge and its text, in points.
double insetOf(const GridCell& cell, std::size_t side)
{
    const std::int16_t own = cell.cell->format.inset.at(side);
    return std::clamp(rtf::points(own >= 0 ? own : cell.row->format.inset.at(side)), 1.0, 36.0);
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

TableRoom roomIn(const GridCell& cell, const TableGrid& grid, const TableRoom& around)
{
    return {.width = grid.widthOf(cell) - insetOf(cell, rtf::Side::left) - insetOf(cell, rtf::Side::right),
        .scale = around.scale * std::min(1.0, around.width / grid.width())};
}

/// Qt makes the columns of a table in a cell as wide as the cell unless each is told its width.
QTextTableFormat tableFormatFor(const TableGrid& grid, const rtf::RowFormat& firstRow, const TableRoom& room)
{
    const double width = grid.width();
    const bool isWide = width + grid.left > room.width;
    const bool isNested = firstRow.depth > 1;
    QTextTableFormat format = plainTable();
    QList<QTextLength> lengths;
    for (const double column : grid.columns) {
        lengths.append(isNested && !isWide ? QTextLength(QTextLength::FixedLength, column * room.scale)
                                           : QTextLength(QTextLength::PercentageLength, 100 * column / width));
    }
    format.setColumnWidthConstraints(lengths);
    if (isWide) {
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    } else {
        place(format, grid, firstRow);
        format.setWidth(
            QTextLength(QTextLength::FixedLength, (width * room.scale) + format.leftMargin() + format.rightMargin()));
    }
    if (firstRow.rightToLeft) {
        format.setLayoutDirection(Qt::RightToLeft);
    }
    return format;
}

QTextTableCellFormat cellFormatFor(const GridCell& cell, int rowsOfTable, int columnsOfTable)
{
    QTextTableCellFormat format;
    for (std::size_t side = 0; side < sides.size(); ++side) {
        setBorder(format, side, borderOf(cell, side, rowsOfTable, columnsOfTable));
        format.setProperty(sides.at(side).padding, insetOf(cell, side));
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
