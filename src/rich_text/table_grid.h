// Where the cells of a table stand in a grid: rows may differ in their edges and number of cells,
// and cells may be merged.
#pragma once

#include "rich_text/document.h"

#include <vector>

namespace selvane::rich_text {

// One visible cell; its contents are those of all cells merged into it.
struct PlacedCell
{
    int row = 0, column = 0, rows = 1, columns = 1;
    const CellFormat* format = nullptr;
    std::vector<const std::vector<Block>*> contents;
};

struct TableGrid
{
    std::vector<int> columnWidths; // twips, each above 0; at least one
    std::vector<PlacedCell> cells; // row by row

    int Width() const;                              // twips
    bool IsWide() const { return Width() > 5'000; } // and so fills the pane instead
};

// The table outlives the grid. One with more than 20,000 places is not merged.
TableGrid MakeGrid(const Table& table);

} // namespace selvane::rich_text
