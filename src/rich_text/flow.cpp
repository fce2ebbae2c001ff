#include "rich_text/flow.h"

#include "rich_text/header_tables.h"
#include "rich_text/words.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxColumns = 64;

void MoveTo(std::vector<Block>& target, std::vector<Block>& source)
{
    target.insert(target.end(), std::make_move_iterator(source.begin()),
                  std::make_move_iterator(source.end()));
    source.clear();
}

// The longest beginning that fits and cuts no character in two.
std::string_view Cut(std::string_view text, std::size_t most)
{
    if (text.size() <= most) return text;
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0) == 0x80) --most;
    return text.substr(0, most);
}

struct Target
{
    RowDefinition& row;
    const ColourTable& colours;
};

template <CellMerge Merge> void MergeAcross(Target& to, const Token&)
{
    to.row.next.horizontalMerge = Merge;
}

template <CellMerge Merge> void MergeDown(Target& to, const Token&)
{
    to.row.next.verticalMerge = Merge;
}

using BorderOf = RowDefinition::BorderOf;

template <BorderOf Owner> void SetBorderOf(Target& to, const Token&)
{
    to.row.borderOf = Owner;
}

void Border(Target& to, const Token&)
{
    if (to.row.borderOf == BorderOf::Cell) to.row.next.bordered = true;
    if (to.row.borderOf == BorderOf::Row) to.row.bordered = true;
}

std::int32_t Edge(const Token& word)
{
    return std::clamp(word.number, -kLongestLength, kLongestLength);
}

constexpr auto kRowWords = WordTable<Target>({
    {"trowd", [](Target& to, const Token&) { to.row = {}; }},
    {"trleft", [](Target& to, const Token& word) { to.row.leftEdge = Edge(word); }},
    {"trhdr", [](Target& to, const Token&) { to.row.repeatedHeader = true; }},
    {"cellx", [](Target& to, const Token& word) { to.row.AddCell(Edge(word)); }},
    {"clmgf", MergeAcross<CellMerge::First>},
    {"clmrg", MergeAcross<CellMerge::Continued>},
    {"clvmgf", MergeDown<CellMerge::First>},
    {"clvmrg", MergeDown<CellMerge::Continued>},
    {"clcbpat",
     [](Target& to, const Token& word) { to.row.next.background = to.colours.Find(word.number); }},
    {"clbrdrl", SetBorderOf<BorderOf::Cell>},
    {"clbrdrr", SetBorderOf<BorderOf::Cell>},
    {"clbrdrt", SetBorderOf<BorderOf::Cell>},
    {"clbrdrb", SetBorderOf<BorderOf::Cell>},
    {"trbrdrl", SetBorderOf<BorderOf::Row>},
    {"trbrdrr", SetBorderOf<BorderOf::Row>},
    {"trbrdrt", SetBorderOf<BorderOf::Row>},
    {"trbrdrb", SetBorderOf<BorderOf::Row>},
    {"trbrdrh", SetBorderOf<BorderOf::Row>},
    {"trbrdrv", SetBorderOf<BorderOf::Row>},
    {"brdrl", SetBorderOf<BorderOf::Other>},
    {"brdrr", SetBorderOf<BorderOf::Other>},
    {"brdrt", SetBorderOf<BorderOf::Other>},
    {"brdrb", SetBorderOf<BorderOf::Other>},
    {"box", SetBorderOf<BorderOf::Other>},
    {"brdrs", Border},
    {"brdrth", Border},
    {"brdrdb", Border},
    {"brdrdot", Border},
    {"brdrdash", Border},
    {"brdrhair", Border},
});

} // namespace

bool RowDefinition::OnWord(const Token& word, const ColourTable& colours)
{
    Target target{*this, colours};
    return Apply(kRowWords, target, word);
}

void RowDefinition::AddCell(std::int32_t rightEdge)
{
    next.rightEdge = rightEdge;
    next.bordered = next.bordered || bordered;
    if (cells.size() < kMaxColumns) cells.push_back(next);
    next = {};
    borderOf = BorderOf::Other;
}

bool Flow::NewRunIsNeeded(const CharacterFormat& format, std::int32_t link) const
{
    if (paragraph_.runs.empty()) return true;
    const Run& last = paragraph_.runs.back();
    if (last.picture >= 0) return true;
    return budget_->runs > 0 && (last.link != link || last.format != format);
}

void Flow::Append(std::string_view text, const CharacterFormat& format, std::int32_t link)
{
    const std::string_view fitting = Cut(text, budget_->textBytes);
    budget_->textBytes = fitting.size() < text.size() ? 0 : budget_->textBytes - text.size();
    if (fitting.empty()) return;
    if (NewRunIsNeeded(format, link)) {
        paragraph_.runs.push_back({{}, format, link, -1});
        if (budget_->runs > 0) --budget_->runs;
    }
    paragraph_.runs.back().text += fitting;
}

void Flow::AppendPicture(std::int32_t picture, const CharacterFormat& format, std::int32_t link)
{
    if (budget_->runs == 0) return;
    --budget_->runs;
    paragraph_.runs.push_back({{}, format, link, picture});
}

// A row whose paragraphs do not say that they are in a table (many writers leave it out) is
// known by its cells: some are there, and fewer than were defined.
bool Flow::IsInUnfinishedRow() const
{
    return !levels_.empty() && !levels_.front().row.cells.empty() &&
           levels_.front().row.cells.size() < definition_.cells.size();
}

void Flow::EndParagraph(ParagraphFormat format, std::optional<ListItem> item, std::size_t depth)
{
    SetTableDepth(depth == 0 && IsInUnfinishedRow() ? 1 : depth);
    paragraph_.format = std::move(format);
    paragraph_.item = std::move(item);
    Container().emplace_back().content.emplace<Paragraph>(std::exchange(paragraph_, {}));
    MoveTo(Container(), attached_);
    if (budget_->paragraphs > 0) --budget_->paragraphs;
}

void Flow::EndCell(std::size_t depth)
{
    SetTableDepth(std::max<std::size_t>(depth, 1));
    FinishCell(levels_.back());
}

void Flow::EndRow(std::size_t depth)
{
    if (levels_.size() < depth) return;
    if (depth == 1) SetTableDepth(1);
    FinishRow(levels_.back(), Definition(levels_.size() > 1));
}

void Flow::AttachAfterParagraph(std::vector<Block> blocks)
{
    MoveTo(attached_, blocks);
}

std::vector<Block> Flow::Finish()
{
    SetTableDepth(0);
    MoveTo(blocks_, attached_);
    return std::move(blocks_);
}

void Flow::SetTableDepth(std::size_t depth)
{
    const std::size_t wanted = std::min(depth, kMaxTableNesting);
    while (levels_.size() > wanted) CloseTable();
    while (levels_.size() < wanted) levels_.emplace_back();
}

void Flow::CloseTable()
{
    Level level = std::move(levels_.back());
    levels_.pop_back();
    const bool isTable = !level.table.rows.empty() || !level.row.cells.empty();
    if (!isTable) { // its paragraphs said they were in a table, but no cell ever ended
        MoveTo(Container(), level.cell);
        return;
    }
    FinishRow(level, Definition(!levels_.empty()));
    Container().emplace_back().content.emplace<Table>(std::move(level.table));
}

void Flow::FinishCell(Level& level)
{
    if (level.row.cells.size() < kMaxColumns) {
        level.row.cells.push_back({{}, std::exchange(level.cell, {})});
    } else {
        MoveTo(level.row.cells.back().blocks, level.cell);
    }
}

void Flow::FinishRow(Level& level, const RowDefinition& definition)
{
    if (!level.cell.empty()) FinishCell(level);
    if (level.row.cells.empty()) return;
    const std::size_t defined = std::min(level.row.cells.size(), definition.cells.size());
    for (std::size_t i = 0; i < defined; ++i) level.row.cells[i].format = definition.cells[i];
    level.row.leftEdge = definition.leftEdge;
    level.row.repeatedHeader = definition.repeatedHeader;
    level.table.rows.push_back(std::exchange(level.row, {}));
}

} // namespace selvane::rich_text
