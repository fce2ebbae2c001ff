// The list definitions of a document, and the labels they make where none is stored.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace selvane::rich_text {

inline constexpr std::size_t kListLevels = 9;
inline constexpr std::size_t kMaxLabelBytes = 256; // what a longer one has more is dropped

enum class NumberStyle : std::uint8_t {
    Arabic,
    UpperRoman,
    LowerRoman,
    UpperLetter,
    LowerLetter,
    Ordinal,
    TwoDigits,
    Bullet,
    None
};

// As rich text numbers them (levelnfc); those it does not know count as Arabic.
NumberStyle NumberStyleOf(std::int32_t code);

// "4", "IV", "iv", "D", "d", "4th", "04"; empty for bullets, for None and below 1.
std::string NumberText(NumberStyle style, std::int32_t number);

struct ListLevel
{
    NumberStyle style = NumberStyle::Arabic;
    std::int32_t start = 1;
    std::string text; // as stored: a length, then characters; 0 to 8 stand for the levels' numbers
};

// Filled in the order of the file, then asked.
class ListTables
{
public:
    void StartList();
    void StartLevel();               // past the ninth of a list ignored
    void SetListId(std::int32_t id); // comes after the list's levels
    ListLevel* CurrentLevel();       // nullptr before the first of a list

    void StartOverride();
    void SetOverriddenList(std::int32_t id);
    void StartOverrideLevel();
    void SetOverrideStart(std::int32_t start);
    void SetOverrideNumber(std::int32_t number); // the number that paragraphs name

    // Counts a paragraph of this list in and gives its label; none if there is no such list or
    // its paragraphs show no label at all. Level 0 to 8.
    std::optional<std::string> NextLabel(std::int32_t number, std::size_t level);

private:
    struct List
    {
        std::vector<ListLevel> levels;
        std::array<std::int32_t, kListLevels> counts{}; // items so far; 0 before the first
    };
    struct Override
    {
        std::int32_t list = 0;
        std::map<std::size_t, std::int32_t> starts;
    };

    std::string Label(const List& list, const Override& override, std::size_t level) const;

    std::vector<List> lists_;
    std::map<std::int32_t, std::size_t> listOfId_;
    std::map<std::int32_t, Override> overrides_;
    Override override_;
    std::size_t overrideLevel_ = 0; // counted from 1
};

} // namespace selvane::rich_text
