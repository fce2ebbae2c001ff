#include "rich_text/row_definition.h"

#include "rich_text/words.h"

#include <utility>

namespace selvane::rich_text {

namespace {

using BorderOf = RowDefinition::BorderOf;

template <BorderOf Owner> void SetBorderOf(RowDefinition& row, const Token&)
{
    row.borderOf = Owner;
}

template <auto Direction, CellMerge Merge> void SetMerge(RowDefinition& row, const Token&)
{
    row.next.*Direction = Merge;
}

std::int32_t Edge(const Token& word)
{
    return std::clamp(word.number, -kLongestLength, kLongestLength);
}

void AddBorder(RowDefinition& row, const Token&)
{
    if (row.borderOf == BorderOf::Cell) row.next.bordered = true;
    if (row.borderOf == BorderOf::Row) row.bordered = true;
}

void AddCell(RowDefinition& row, const Token& word)
{
    row.next.rightEdge = Edge(word);
    row.next.bordered = row.next.bordered || row.bordered;
    if (row.cells.size() < kMaxColumns) row.cells.push_back(row.next);
    row.next = {};
    row.borderOf = BorderOf::Other;
}

constexpr WordTable<RowDefinition, 64> kRowWords{
    {"trowd", [](RowDefinition& row, const Token&) { row = {}; }},
    {"trleft", [](RowDefinition& row, const Token& word) { row.leftEdge = Edge(word); }},
    {"trhdr", [](RowDefinition& row, const Token&) { row.repeatedHeader = true; }},
    {"cellx", AddCell},
    {"clmgf", SetMerge<&CellFormat::horizontalMerge, CellMerge::First>},
    {"clmrg", SetMerge<&CellFormat::horizontalMerge, CellMerge::Continued>},
    {"clvmgf", SetMerge<&CellFormat::verticalMerge, CellMerge::First>},
    {"clvmrg", SetMerge<&CellFormat::verticalMerge, CellMerge::Continued>},
    {"clbrdrl clbrdrr clbrdrt clbrdrb", SetBorderOf<BorderOf::Cell>},
    {"trbrdrl trbrdrr trbrdrt trbrdrb trbrdrh trbrdrv", SetBorderOf<BorderOf::Row>},
    {"brdrl brdrr brdrt brdrb box", SetBorderOf<BorderOf::Other>},
    {"brdrs brdrth brdrdb brdrdot brdrdash brdrhair", AddBorder},
};

} // namespace

void RowDefinition::OnWord(const Token& word)
{
    kRowWords.Apply(*this, word);
}

} // namespace selvane::rich_text
