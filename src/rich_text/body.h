// The body of a document, or a text box in it: what of the words and the text is to be seen.
#pragma once

#include "rich_text/destination.h"
#include "rich_text/flow.h"
#include "rich_text/header_tables.h"
#include "rich_text/lists.h"
#include "rich_text/pictures.h"

namespace selvane::rich_text {

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
        : Destination(Takes::Text), content_(content), around_(around), flow_(content.budget)
    {}

    // The words that end a paragraph, a cell or a row.
    bool OnWord(const Token& word, Group& group) override;
    void OnText(std::string_view text, const Group& group) override;
    void OnEnd(const Group& group) override;

    void AddPicture(PictureReader& picture, const Group& group);
    bool OnRowWord(const Token& word, const Group& group);
    std::vector<Block> Finish(const Group& group);

    ShortText storedLabel{kMaxLabelBytes}; // \listtext: of the pending paragraph

private:
    void EndParagraph(const Group& group, std::size_t depth);
    void EndPendingParagraph(const Group& group);
    void EndCell(const Group& group);
    void EndRow(const Group& group);
    void EndNestedCell(const Group& group);
    void EndNestedRow(const Group& group);

    Content& content_;
    Body* around_;
    Flow flow_;
};

} // namespace selvane::rich_text
