#include "rich_text/body.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxPictures = 65'536;
constexpr std::size_t kMaxTableNesting = 8;

std::size_t DepthOf(const Group& group)
{
    return static_cast<std::size_t>(group.paragraph.tableNesting);
}

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

} // namespace

void Body::OnText(std::string_view text, const Group& group)
{
    if (!group.character.IsSeen()) return;
    content_.shown += text.size();
    std::size_t& left = content_.budget.textBytes;
    const std::string_view fitting = Cut(text, left);
    left = fitting.size() < text.size() ? 0 : left - text.size();
    if (fitting.empty()) return;
    if (NewRunIsNeeded(group)) AddRun(group, -1);
    paragraph_.runs.back().text += fitting;
}

void Body::OnEnd(const Group& group)
{
    std::vector<Block> box = Finish(group);
    MoveTo(around_->attached_, box);
}

void Body::AddPicture(PictureReader& reader, const Group& group)
{
    std::vector<Picture>& pictures = content_.document.pictures;
    if (!group.character.IsSeen() || pictures.size() >= kMaxPictures) return;
    std::optional<Picture> picture = reader.Finish();
    if (!picture) return;
    pictures.push_back(std::move(*picture));
    ++content_.shown;
    if (content_.budget.runs > 0) AddRun(group, static_cast<std::int32_t>(pictures.size()) - 1);
}

bool Body::NewRunIsNeeded(const Group& group) const
{
    if (paragraph_.runs.empty()) return true;
    const Run& last = paragraph_.runs.back();
    if (last.picture >= 0) return true;
    return content_.budget.runs > 0 && (last.link != group.link || last.format != group.character);
}

void Body::AddRun(const Group& group, std::int32_t picture)
{
    if (content_.budget.runs > 0) --content_.budget.runs;
    paragraph_.runs.push_back({{}, group.character, group.link, picture});
}

void Body::EndParagraph(const Group& group)
{
    EndParagraphAt(DepthOf(group), group);
}

void Body::EndPendingParagraph(const Group& group)
{
    if (IsPending()) EndParagraph(group);
}

void Body::EndParagraphAt(std::size_t depth, const Group& group)
{
    SetTableDepth(depth == 0 && IsInUnfinishedRow() ? 1 : depth);
    ParagraphFormat& format = paragraph_.format;
    format = group.paragraph;
    format.headingLevel = content_.styles.HeadingLevel(group.paragraph);
    if (format.lineSpacingIsMultiple) format.lineSpacing = std::abs(format.lineSpacing);
    paragraph_.item = content_.lists.NextItem(group.paragraph, storedLabel.value);
    storedLabel.value.clear();
    Container().emplace_back().content.emplace<Paragraph>(std::exchange(paragraph_, {}));
    MoveTo(Container(), attached_);
    if (content_.budget.paragraphs > 0) --content_.budget.paragraphs;
}

void Body::EndCell(const Group& group)
{
    EndParagraphAt(1, group);
    FinishCell();
}

void Body::EndRow(const Group& group)
{
    if (IsPending()) EndCell(group);
    if (levels_.empty()) return;
    SetTableDepth(1);
    FinishRow();
}

void Body::EndNestedCell(const Group& group)
{
    const std::size_t given = DepthOf(group);
    const std::size_t depth = given > 1 ? given : std::max<std::size_t>(levels_.size(), 2);
    EndParagraphAt(depth, group);
    if (depth <= kMaxTableNesting) FinishCell();
}

void Body::EndNestedRow(const Group& group)
{
    if (DepthOf(group) > kMaxTableNesting) return;
    if (IsPending()) EndNestedCell(group);
    if (levels_.size() > 1) FinishRow();
}

RowDefinition& Body::Definition(const Group& group)
{
    return definitions_[group.inNestedTableProperties || DepthOf(group) > 1];
}

std::vector<Block> Body::Finish(const Group& group)
{
    EndPendingParagraph(group);
    SetTableDepth(0);
    MoveTo(blocks_, attached_);
    return std::move(blocks_);
}

// A row whose paragraphs do not say that they are in a table (many writers leave it out) is
// known by its cells: some are there, and fewer than were defined.
bool Body::IsInUnfinishedRow() const
{
    if (levels_.empty()) return false;
    const std::size_t cells = levels_.front().row.cells.size();
    return cells > 0 && cells < definitions_[0].cells.size();
}

// Depth 0 is outside of tables; depths over kMaxTableNesting count as that.
void Body::SetTableDepth(std::size_t depth)
{
    const std::size_t wanted = std::min(depth, kMaxTableNesting);
    while (levels_.size() > wanted) FinishTable();
    while (levels_.size() < wanted) levels_.emplace_back();
}

void Body::FinishCell()
{
    auto& [table, row, cell] = levels_.back();
    if (row.cells.size() < kMaxColumns)
        row.cells.push_back({{}, std::exchange(cell, {})});
    else
        MoveTo(row.cells.back().blocks, cell);
}

void Body::FinishRow()
{
    auto& [table, row, cell] = levels_.back();
    if (!cell.empty()) FinishCell();
    if (row.cells.empty()) return;
    const RowDefinition& definition = definitions_[levels_.size() > 1];
    const std::size_t defined = std::min(row.cells.size(), definition.cells.size());
    for (std::size_t i = 0; i < defined; ++i) row.cells[i].format = definition.cells[i];
    row.leftEdge = definition.leftEdge;
    row.repeatedHeader = definition.repeatedHeader;
    table.rows.push_back(std::exchange(row, {}));
}

// Paragraphs may have said that they were in a table although no cell ever ended.
void Body::FinishTable()
{
    const bool isTable = !levels_.back().table.rows.empty() || !levels_.back().row.cells.empty();
    if (isTable) FinishRow();
    Level level = std::move(levels_.back());
    levels_.pop_back();
    if (isTable)
        Container().emplace_back().content.emplace<Table>(std::move(level.table));
    else
        MoveTo(Container(), level.cell);
}

} // namespace selvane::rich_text
