// The body of a document, or a text box in it: what of the words and the text is to be seen,
// gathered into blocks in the order of the file.
#pragma once

#include "rich_text/destination.h"
#include "rich_text/header_tables.h"
#include "rich_text/lists.h"
#include "rich_text/pictures.h"
#include "rich_text/row_definition.h"

#include <array>

namespace selvane::rich_text {

// What a document may still grow by; once one is used up, reading stops (runs: formats merge).
struct Budget
{
    std::size_t paragraphs = 200'000;
    std::size_t textBytes = std::size_t{16} << 20;
    std::size_t runs = 1'000'000;

    bool IsSpent() const { return paragraphs == 0 || textBytes == 0; }
};

// What the parts of one document share.
struct Content
{
    FontTable fonts;
    ColourTable colours;
    StyleSheet styles;
    Lists lists;

    Document document;
    Budget budget;
    std::size_t shown = 0; // bytes of text and pictures that reached the body
};

class Body : public Destination
{
public:
    // A text box stands after the paragraph of the body around it; nullptr: the body itself.
    explicit Body(Content& content, Body* around = nullptr)
        : Destination(Takes::Text), content_(content), around_(around)
    {}

    void OnText(std::string_view text, const Group& group) override;
    void OnEnd(const Group& group) override;
    void AddPicture(PictureReader& reader, const Group& group);

    // What ends a paragraph, even an empty one, a paragraph if one has begun, a cell or a row.
    void EndParagraph(const Group& group);
    void EndPendingParagraph(const Group& group);
    void EndCell(const Group& group);
    void EndRow(const Group& group);
    void EndNestedCell(const Group& group);
    void EndNestedRow(const Group& group);

    RowDefinition& Definition(const Group& group); // of the rows that the group is about

    // Ends everything and gives it up.
    std::vector<Block> Finish(const Group& group);

    ShortText storedLabel{kMaxLabelBytes}; // \listtext: of the pending paragraph

private:
    // A table that has begun; those around it stand before it.
    struct Level
    {
        Table table;
        Row row;
        std::vector<Block> cell;
    };

    bool IsPending() const { return !paragraph_.runs.empty(); }
    bool NewRunIsNeeded(const Group& group) const;
    void AddRun(const Group& group, std::int32_t picture);
    void EndParagraphAt(std::size_t depth, const Group& group);
    std::vector<Block>& Container() { return levels_.empty() ? blocks_ : levels_.back().cell; }
    bool IsInUnfinishedRow() const;
    void SetTableDepth(std::size_t depth);
    void FinishCell();
    void FinishRow();
    void FinishTable();

    Content& content_;
    Body* around_;
    Paragraph paragraph_;
    std::vector<Block> attached_; // what stands after the pending paragraph once it ends
    std::vector<Block> blocks_;
    std::vector<Level> levels_;
    std::array<RowDefinition, 2> definitions_; // of rows of the outermost tables, of nested ones
};

} // namespace selvane::rich_text
