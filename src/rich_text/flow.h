// Gathers paragraphs, cells and rows, in the order of the file, into blocks.
#pragma once

#include "rich_text/document.h"
#include "rich_text/tokens.h"

#include <string_view>
#include <vector>

namespace selvane::rich_text {

inline constexpr std::size_t kMaxTableNesting = 8;

// What a document may still grow by; once one is used up, reading stops (runs: formats merge).
struct Budget
{
    std::size_t paragraphs = 200'000;
    std::size_t textBytes = std::size_t{16} << 20;
    std::size_t runs = 1'000'000;

    bool IsSpent() const { return paragraphs == 0 || textBytes == 0; }
};

class ColourTable;

// How the cells of a row look; rich text says it apart from what is in them.
struct RowDefinition
{
    // False: the word is none for rows.
    bool OnWord(const Token& word, const ColourTable& colours);

    // Ends the definition of a cell; past the 64th ignored.
    void AddCell(std::int32_t rightEdge);

    std::vector<CellFormat> cells; // at most 64
    CellFormat next;               // known so far about the cell whose edge comes next
    std::int32_t leftEdge = 0;
    bool repeatedHeader = false;
    bool bordered = false;

    enum class BorderOf : std::uint8_t { Other, Cell, Row };
    BorderOf borderOf = BorderOf::Other; // what the next border word is about
};

// A stream of text: the body, or a text box. Table depth 0 is outside of tables; depths over
// kMaxTableNesting count as that.
class Flow
{
public:
    explicit Flow(Budget& budget) : budget_(&budget) {}

    void Append(std::string_view text, const CharacterFormat& format, std::int32_t link);
    void AppendPicture(std::int32_t picture, const CharacterFormat& format, std::int32_t link);
    bool HasPendingRuns() const { return !paragraph_.runs.empty(); }
    std::size_t TableDepth() const { return levels_.size(); }

    // Ends the pending paragraph, even an empty one, as one of a cell at this depth.
    void EndParagraph(ParagraphFormat format, std::optional<ListItem> item, std::size_t depth);

    // Ends the cell that the paragraphs ended so far at this depth (1 and up) are in.
    void EndCell(std::size_t depth);

    // Ends a row of the innermost table; does nothing outside of tables of at least this depth.
    void EndRow(std::size_t depth);

    // The definition for rows of depth 1, or of all deeper ones.
    RowDefinition& Definition(bool nested) { return nested ? nestedDefinition_ : definition_; }

    // Blocks that stand after the pending paragraph once it ends.
    void AttachAfterParagraph(std::vector<Block> blocks);

    // Closes all tables and gives everything up. A pending paragraph must be ended before.
    std::vector<Block> Finish();

private:
    struct Level
    {
        Table table;
        Row row;
        std::vector<Block> cell;
    };

    bool NewRunIsNeeded(const CharacterFormat& format, std::int32_t link) const;
    std::vector<Block>& Container() { return levels_.empty() ? blocks_ : levels_.back().cell; }
    bool IsInUnfinishedRow() const;
    void SetTableDepth(std::size_t depth);
    void CloseTable();
    static void FinishCell(Level& level);
    static void FinishRow(Level& level, const RowDefinition& definition);

    Budget* budget_;
    Paragraph paragraph_;
    std::vector<Block> attached_;
    std::vector<Block> blocks_;
    std::vector<Level> levels_;
    RowDefinition definition_;
    RowDefinition nestedDefinition_;
};

} // namespace selvane::rich_text
