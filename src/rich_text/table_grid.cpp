#include "rich_text/table_grid.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace selvane::rich_text {

namespace {

constexpr int kDefaultWidth = 1440; // twips, of a cell whose edge the document does not give
constexpr int kSameEdge = 60;       // twips; writers place an edge a little differently by row
constexpr std::size_t kMostPlaces = 20'000;

// The right edges of a row's cells, growing.
std::vector<int> EdgesOf(const Row& row)
{
    std::vector<int> edges;
    int last = row.leftEdge;
    for (const Cell& cell : row.cells) {
        const int edge = cell.format.rightEdge;
        last = edge > last + kSameEdge ? edge : last + kDefaultWidth;
        edges.push_back(last);
    }
    return edges;
}

// The columns' right edges: those of all rows, close ones taken together.
class Columns
{
public:
    explicit Columns(const std::vector<std::vector<int>>& rows, int left) : left_(left)
    {
        std::vector<int> all;
        for (const auto& row : rows) all.insert(all.end(), row.begin(), row.end());
        std::sort(all.begin(), all.end());
        for (const int edge : all)
            if (edges_.empty() || edge > edges_.back() + kSameEdge) edges_.push_back(edge);
    }

    // The column that an edge closes.
    int At(int edge) const
    {
        const auto above = std::upper_bound(edges_.begin(), edges_.end(), edge);
        return static_cast<int>(above - edges_.begin()) - 1;
    }

    int Count() const { return static_cast<int>(edges_.size()); }

    std::vector<int> Widths() const
    {
        std::vector<int> widths;
        int last = left_;
        for (const int edge : edges_) {
            widths.push_back(std::max(edge - last, kSameEdge));
            last = edge;
        }
        return widths;
    }

private:
    int left_;
    std::vector<int> edges_;
};

// A cell that went into another one is mostly empty, and would leave a blank line there.
void Append(PlacedCell& cell, const PlacedCell& by)
{
    const std::vector<Block>& blocks = *by.contents.front();
    if (PlainText(blocks).find_first_not_of(" \t\n") != std::string::npos)
        cell.contents.push_back(&blocks);
}

// Places the rows one after another and remembers what stands above.
class Placer
{
public:
    void Place(const Row& row, const std::vector<int>& lastColumns, int rowIndex)
    {
        int column = 0;
        PlacedCell* before = nullptr;
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            const Cell& cell = row.cells[i];
            const int columns = std::max(lastColumns[i] + 1 - column, 1);
            PlacedCell placed{rowIndex, column, 1, columns, &cell.format, {&cell.blocks}};
            column += columns;
            if (cell.format.horizontalMerge == CellMerge::Continued && before && before->rows == 1)
                Widen(*before, placed);
            else
                before = Merge(placed);
        }
    }

    std::vector<PlacedCell> Take() { return std::move(cells_); }

private:
    static void Widen(PlacedCell& cell, const PlacedCell& by)
    {
        cell.columns += by.columns;
        Append(cell, by);
    }

    // Joins the cell above where both say so, otherwise stands by itself.
    PlacedCell* Merge(const PlacedCell& placed)
    {
        const auto above = lowest_.find(placed.column);
        if (placed.format->verticalMerge == CellMerge::Continued && above != lowest_.end()) {
            PlacedCell& cell = cells_[above->second];
            if (cell.row + cell.rows == placed.row && cell.columns == placed.columns) {
                ++cell.rows;
                Append(cell, placed);
                return &cell;
            }
        }
        lowest_[placed.column] = cells_.size();
        cells_.push_back(placed);
        return &cells_.back();
    }

    std::vector<PlacedCell> cells_;
    std::map<int, std::size_t> lowest_; // by column
};

// Cell by cell in columns of one width.
TableGrid PlainGrid(const Table& table)
{
    std::size_t columns = 1;
    TableGrid grid;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        const std::vector<Cell>& cells = table.rows[row].cells;
        columns = std::max(columns, cells.size());
        for (std::size_t column = 0; column < cells.size(); ++column)
            grid.cells.push_back({static_cast<int>(row),
                                  static_cast<int>(column),
                                  1,
                                  1,
                                  &cells[column].format,
                                  {&cells[column].blocks}});
    }
    grid.columnWidths.assign(columns, kDefaultWidth);
    return grid;
}

} // namespace

int TableGrid::Width() const
{
    return std::accumulate(columnWidths.begin(), columnWidths.end(), 0);
}

TableGrid MakeGrid(const Table& table)
{
    std::vector<std::vector<int>> edges;
    int left = 0;
    for (const Row& row : table.rows) {
        edges.push_back(EdgesOf(row));
        left = edges.size() == 1 ? row.leftEdge : std::min(left, row.leftEdge);
    }
    const Columns columns(edges, left);
    if (columns.Count() == 0 ||
        static_cast<std::size_t>(columns.Count()) * table.rows.size() > kMostPlaces)
        return PlainGrid(table);

    Placer placer;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        std::vector<int> lastColumns;
        for (const int edge : edges[row]) lastColumns.push_back(columns.At(edge));
        placer.Place(table.rows[row], lastColumns, static_cast<int>(row));
    }
    return {columns.Widths(), placer.Take()};
}

} // namespace selvane::rich_text
