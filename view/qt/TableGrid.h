#pragma once

#include "rtf/Blocks.h"

#include <vector>

namespace corvellane::view {

/// Where a cell stands in the grid of its table.
struct GridCell {
    const rtf::TableCell* cell = nullptr;
    const rtf::TableRow* row = nullptr;
    int firstRow = 0;
    int firstColumn = 0;
    int rows = 1;
    int columns = 1;
};

/// A table's columns, of which its rows may each have other ones, and its cells, merged as their author has it.
struct TableGrid {
    int rows = 0;
    /// The columns' widths in points.
    std::vector<double> columns;
    /// From the left edge of the text area to the first column, in points.
    double left = 0;
    std::vector<GridCell> cells;

    double width() const;
    double widthOf(const GridCell& cell) const;
};

TableGrid gridOf(const std::vector<rtf::TableRow>& rows);

} // namespace corvellane::view
