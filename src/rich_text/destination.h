// What a part of a document does with the words and the text in it: each part (the body, the font
// table, a picture, ...) is a destination of its own.
#pragma once

#include "rich_text/document.h"
#include "rich_text/tokens.h"

#include <string>
#include <string_view>

namespace selvane::rich_text {

class Destination;
struct OldList;

// What \plain resets.
struct CharacterState : CharacterFormat
{
    bool hidden = false;
    bool deleted = false;

    bool IsSeen() const { return !hidden && !deleted; }
};

// What \pard resets.
struct ParagraphState : ParagraphFormat
{
    TabKind nextTabKind = TabKind::Left;
    std::int32_t style = 0;
    std::int32_t outline = -1;   // 0 to 9; -1: as the style has it
    std::int32_t listNumber = 0; // 0: in no list
    std::int32_t listLevel = 0;  // 0 to 8
    OldList* oldList = nullptr;
    std::int32_t tableNesting = 0; // 0: in no table
};

// All that a group, a pair of braces, saves and restores.
struct Group
{
    CharacterState character;
    ParagraphState paragraph;
    std::int32_t link = -1;
    std::int32_t unicodeSkip = 1; // characters that stand behind a \u for readers without Unicode
    bool inNestedTableProperties = false;

    Destination* destination = nullptr; // where text goes
    Destination* outside = nullptr;     // where parts of an unseen group may go back to

    // What the end of this very group ends.
    Destination* ends = nullptr;
    bool endsField = false;
};

class Destination
{
public:
    enum class Takes : std::uint8_t {
        Nothing,
        Text,
        LabelTemplate, // text in which the bytes 0 to 8 stand for numbers
        Bytes          // the text of the file as it stands
    };

    explicit Destination(Takes what) : takes(what) {}
    virtual ~Destination() = default;
    Destination(const Destination&) = delete;
    Destination& operator=(const Destination&) = delete;

    // What the group is of from the word on: mostly this, or a part of it; nullptr: the word is
    // none of its own.
    virtual Destination* OnWord(const Token& /*word*/) { return nullptr; }
    virtual void OnText(std::string_view /*text*/, const Group& /*group*/) {}
    virtual void OnEnd(const Group& /*group*/) {}

    const Takes takes;
};

// Keeps a short text; a piece that would make it too long is dropped.
class ShortText : public Destination
{
public:
    explicit ShortText(std::size_t mostBytes, Takes what = Takes::Text)
        : Destination(what), mostBytes_(mostBytes)
    {}

    void OnText(std::string_view text, const Group&) override
    {
        if (value.size() + text.size() <= mostBytes_) value += text;
    }

    std::string value;

private:
    std::size_t mostBytes_;
};

} // namespace selvane::rich_text
