#pragma once

#include "view/qt/TableGrid.h"

#include <QTextTableCellFormat>
#include <QTextTableFormat>

namespace corvellane::view {

/// Where a table stands: in the document, or in a cell of another one.
struct TableRoom {
    /// In points: a table that takes more is shown as wide as there is place.
    double width = 400;
    /// What a point of the author's is shown as, where the tables around are shown narrower than they are.
    double scale = 1;
};

TableRoom roomIn(const GridCell& cell, const TableGrid& grid, const TableRoom& around);

QTextTableFormat tableFormatFor(const TableGrid& grid, const rtf::RowFormat& firstRow, const TableRoom& room);
QTextTableCellFormat cellFormatFor(const GridCell& cell, int rowsOfTable, int columnsOfTable);

/// The format of a frame around paragraphs, and of the one cell that it has.
QTextTableFormat frameFormat();
QTextTableCellFormat frameCellFormatFor(const rtf::ParagraphFormat& paragraph);

} // namespace corvellane::view
