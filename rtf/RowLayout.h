#pragma once

#include "rtf/AttributedText.h"

#include <array>
#include <cstdint>

namespace corvellane::rtf {

/// What the words of borders are about.
enum class BorderTarget : std::uint8_t { none, character, paragraph, cell, row };

/// The layouts of rows that are being described: of a table, and beside it of one within its cells.
class RowLayout {
public:
    RowFormat& row() { return layouts_[isNested ? 1 : 0].row; }
    CellFormat& cell() { return layouts_[isNested ? 1 : 0].cell; }

    void begin() { layouts_[isNested ? 1 : 0] = {}; }

    /// A row within a cell is described.
    bool isNested = false;

private:
    struct Layout {
        RowFormat row;
        CellFormat cell;
    };

    std::array<Layout, 2> layouts_;
};

} // namespace corvellane::rtf
