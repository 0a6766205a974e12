#include "view/qt/TableGrid.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace corvellane::view {
namespace {

/// Edges that are no further apart are one.
constexpr rtf::Twips edgeTolerance = 40;
/// Of a cell that is described by none.
constexpr rtf::Twips usualWidth = 1440;
constexpr rtf::Twips furthestEdge = 22 * 1440;

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

/// `above` is the last cell that begins in the same column; null for none.
bool joinsAbove(GridCell* above, const GridCell& next)
{
    const bool continues = next.cell->format.verticalMerge == rtf::CellMerge::continued && above != nullptr
        && above->columns == next.columns && above->firstRow + above->rows == next.firstRow
        && above->cell->format.verticalMerge != rtf::CellMerge::none;
    if (continues) {
        ++above->rows;
    }
    return continues;
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

} // namespace

double TableGrid::width() const
{
    return std::accumulate(columns.begin(), columns.end(), 0.0);
}

double TableGrid::widthOf(const GridCell& cell) const
{
    const auto first = columns.begin() + cell.firstColumn;
    return std::accumulate(first, first + cell.columns, 0.0);
}

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
    // By column: 1 + the index of the last cell that begins in it, 0 for none.
    std::vector<std::size_t> lastCells(common.size(), 0);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t cell = 0; cell < rows[row].cells.size(); ++cell) {
            const int begin = columnAt(common, edgesOfRows[row][cell]);
            const int end = columnAt(common, edgesOfRows[row][cell + 1]);
            const GridCell next{&rows[row].cells[cell], &rows[row], static_cast<int>(row), begin, 1, end - begin};
            std::size_t& last = lastCells[static_cast<std::size_t>(begin)];
            GridCell* const above = last != 0 ? &grid.cells[last - 1] : nullptr;
            if (!joinsLeft(grid.cells, next) && !joinsAbove(above, next)) {
                grid.cells.push_back(next);
                last = grid.cells.size();
            }
        }
    }
    if (rows.front().format.rightToLeft) {
        mirror(grid);
    }
    return grid;
}

} // namespace corvellane::view
