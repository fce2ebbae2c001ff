// The list definitions of a document, and the labels they make where none is stored.
#pragma once

#include "rich_text/destination.h"

#include <array>
#include <deque>
#include <map>
#include <optional>
#include <vector>

namespace selvane::rich_text {

inline constexpr std::size_t kListLevels = 9;
inline constexpr std::int32_t kLastListLevel = kListLevels - 1;
inline constexpr std::size_t kMaxLabelBytes = 256; // what a longer one has more is dropped

// As \levelnfc numbers them.
enum class NumberStyle : std::uint8_t {
    Arabic = 0,
    UpperRoman = 1,
    LowerRoman = 2,
    UpperLetter = 3,
    LowerLetter = 4,
    Ordinal = 5,
    TwoDigits = 22,
    Bullet = 23,
    None = 255
};

// \listtable: the definitions of lists.
class ListTable : public Destination
{
public:
    struct Level
    {
        NumberStyle style = NumberStyle::Arabic;
        std::int32_t start = 1;
        // As stored: a length, then characters, of which 0 to 8 stand for the levels' numbers.
        ShortText label{kMaxLabelBytes, Takes::LabelTemplate};
    };
    struct List
    {
        std::deque<Level> levels;                       // at most kListLevels
        std::array<std::int32_t, kListLevels> counts{}; // items so far; 0 before the first
    };

    ListTable() : Destination(Takes::Nothing) {}
    Destination* OnWord(const Token& word) override;

    std::map<std::int32_t, List*> byId;

private:
    Level* CurrentLevel(); // nullptr before the first of a list

    std::deque<List> lists_;
};

// \listoverridetable: which list a number in a paragraph means, and where it starts anew.
class ListOverrideTable : public Destination
{
public:
    struct Override
    {
        std::int32_t list = 0;
        std::array<std::optional<std::int32_t>, kListLevels> starts;
    };

    ListOverrideTable() : Destination(Takes::Nothing) {}
    Destination* OnWord(const Token& word) override;

    std::map<std::int32_t, Override> byNumber;

private:
    Override current_;
    std::size_t level_ = 0; // counted from 1
};

// \pn: a list as older writers define it, with each of its paragraphs.
struct OldList : public Destination
{
    OldList() : Destination(Takes::Nothing) {}
    Destination* OnWord(const Token& word) override;

    bool showsLabel = false;
    bool isNumbered = false;
    NumberStyle style = NumberStyle::Arabic;
    std::int32_t level = 0;
    std::int32_t start = 1;
    ShortText before{kMaxLabelBytes};
    ShortText after{kMaxLabelBytes};
};

// The lists of a document, and how far their numbers have come.
class Lists
{
public:
    ListTable table;
    ListOverrideTable overrides;

    // nullptr when there are too many.
    OldList* AddOldList();

    // Counts the paragraph that ends in, and gives its place in a list. A label that the writer
    // stored is what it showed; only where there is none it is worked out.
    std::optional<ListItem> NextItem(const ParagraphState& paragraph, std::string_view storedLabel);

private:
    std::optional<std::string> NextLabel(std::int32_t number, std::size_t level);
    std::string NextOldLabel(const OldList& list);

    std::deque<OldList> oldLists_;
    std::int32_t oldCount_ = 0; // numbered paragraphs since the last one that was not
    NumberStyle oldStyle_ = NumberStyle::Arabic;
    std::int32_t oldLevel_ = 0;
};

} // namespace selvane::rich_text
