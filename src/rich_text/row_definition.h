// How the cells of a row look; rich text says it apart from what is in them.
#pragma once

#include "rich_text/document.h"
#include "rich_text/tokens.h"

#include <vector>

namespace selvane::rich_text {

inline constexpr std::size_t kMaxColumns = 64;

struct RowDefinition
{
    // Words that are none for rows do nothing.
    void OnWord(const Token& word);

    std::vector<CellFormat> cells; // at most kMaxColumns
    CellFormat next;               // known so far about the cell whose edge comes next
    std::int32_t leftEdge = 0;
    bool repeatedHeader = false;
    bool bordered = false;

    enum class BorderOf : std::uint8_t { Other, Cell, Row };
    BorderOf borderOf = BorderOf::Other; // what the next border word is about
};

} // namespace selvane::rich_text
