#pragma once

#include "rtf/AttributedText.h"

#include <vector>

namespace corvellane::rtf {

struct TableRow;

/// A paragraph, or a table.
struct Block {
    Paragraph paragraph;
    /// The rows of a table; none for a paragraph.
    std::vector<TableRow> rows;
};

struct TableCell {
    CellFormat format;
    /// At least one.
    std::vector<Block> blocks;
};

/// A row has at least one cell.
struct TableRow {
    RowFormat format;
    std::vector<TableCell> cells;
};

/// The text's paragraphs and tables in their order. Rows that follow each other are one table. A row that is not ended
/// is no row: what is in its cells are paragraphs like others.
std::vector<Block> blocksOf(const AttributedText& text);

} // namespace corvellane::rtf
