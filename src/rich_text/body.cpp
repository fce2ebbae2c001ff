#include "rich_text/body.h"

#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxPictures = 65'536;

std::size_t DepthOf(const Group& group)
{
    return static_cast<std::size_t>(group.tableNesting);
}

} // namespace

bool Body::OnWord(const Token& word, Group& group)
{
    if (word.text == "par")
        EndParagraph(group, DepthOf(group));
    else if (word.text == "cell")
        EndCell(group);
    else if (word.text == "row")
        EndRow(group);
    else if (word.text == "page" || word.text == "sect" || word.text == "column")
        EndPendingParagraph(group);
    else if (word.text == "nestcell")
        EndNestedCell(group);
    else if (word.text == "nestrow")
        EndNestedRow(group);
    else
        return false;
    return true;
}

void Body::OnText(std::string_view text, const Group& group)
{
    if (group.hidden || group.deleted) return;
    content_.shown += text.size();
    flow_.Append(text, group.character, group.link);
}

void Body::OnEnd(const Group& group)
{
    around_->flow_.AttachAfterParagraph(Finish(group));
}

void Body::AddPicture(PictureReader& reader, const Group& group)
{
    std::vector<Picture>& pictures = content_.document.pictures;
    if (group.hidden || group.deleted || pictures.size() >= kMaxPictures) return;
    std::optional<Picture> picture = reader.Finish();
    if (!picture) return;
    pictures.push_back(std::move(*picture));
    ++content_.shown;
    flow_.AppendPicture(static_cast<std::int32_t>(pictures.size()) - 1, group.character,
                        group.link);
}

bool Body::OnRowWord(const Token& word, const Group& group)
{
    const bool isNested = group.inNestedTableProperties || group.tableNesting > 1;
    return flow_.Definition(isNested).OnWord(word, content_.colours);
}

std::vector<Block> Body::Finish(const Group& group)
{
    EndPendingParagraph(group);
    return flow_.Finish();
}

void Body::EndParagraph(const Group& group, std::size_t depth)
{
    ParagraphFormat format = group.paragraph;
    format.headingLevel = content_.styles.HeadingLevel(group);
    if (format.lineSpacingIsMultiple) format.lineSpacing = std::abs(format.lineSpacing);
    auto item = content_.lists.NextItem(group, std::exchange(storedLabel.value, {}));
    flow_.EndParagraph(std::move(format), std::move(item), depth);
}

void Body::EndPendingParagraph(const Group& group)
{
    if (flow_.HasPendingRuns()) EndParagraph(group, DepthOf(group));
}

void Body::EndCell(const Group& group)
{
    EndParagraph(group, 1);
    flow_.EndCell(1);
}

void Body::EndRow(const Group& group)
{
    if (flow_.HasPendingRuns()) EndCell(group);
    flow_.EndRow(1);
}

void Body::EndNestedCell(const Group& group)
{
    const std::size_t given = DepthOf(group);
    const std::size_t depth = given > 1 ? given : std::max<std::size_t>(flow_.TableDepth(), 2);
    EndParagraph(group, depth);
    if (depth <= kMaxTableNesting) flow_.EndCell(depth);
}

void Body::EndNestedRow(const Group& group)
{
    if (DepthOf(group) > kMaxTableNesting) return;
    if (flow_.HasPendingRuns()) EndNestedCell(group);
    flow_.EndRow(2);
}

} // namespace selvane::rich_text
