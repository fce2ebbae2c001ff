#include "rich_text/lists.h"

#include <algorithm>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxLists = 8192;
constexpr std::int32_t kLongestRoman = 3999;

std::string Roman(std::int32_t number)
{
    struct Numeral
    {
        std::int32_t value;
        const char* letters;
    };
    static constexpr Numeral kNumerals[] = {
        {1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"}, {90, "xc"}, {50, "l"},
        {40, "xl"},  {10, "x"},   {9, "ix"},  {5, "v"},    {4, "iv"},  {1, "i"},
    };
    if (number > kLongestRoman) return std::to_string(number);
    std::string text;
    for (const Numeral& numeral : kNumerals)
        for (; number >= numeral.value; number -= numeral.value) text += numeral.letters;
    return text;
}

// a to z, then aa, bb and so on.
std::string Letters(std::int32_t number)
{
    const auto times = static_cast<std::size_t>((number - 1) / 26 + 1);
    return std::string(std::min<std::size_t>(times, 32),
                       static_cast<char>('a' + (number - 1) % 26));
}

std::string Ordinal(std::int32_t number)
{
    const std::int32_t tens = number % 100;
    const std::int32_t ones = tens >= 11 && tens <= 13 ? 0 : number % 10;
    return std::to_string(number) + (ones == 1 ? "st" : ones == 2 ? "nd" : ones == 3 ? "rd" : "th");
}

std::string Capitals(std::string text)
{
    for (char& c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return text;
}

// Drops the stored length in front and the semicolon behind.
std::string_view Template(std::string_view stored)
{
    if (!stored.empty()) stored.remove_prefix(1);
    if (stored.ends_with(';')) stored.remove_suffix(1);
    return stored;
}

} // namespace

NumberStyle NumberStyleOf(std::int32_t code)
{
    switch (code) {
    case 1:
        return NumberStyle::UpperRoman;
    case 2:
        return NumberStyle::LowerRoman;
    case 3:
        return NumberStyle::UpperLetter;
    case 4:
        return NumberStyle::LowerLetter;
    case 5:
        return NumberStyle::Ordinal;
    case 22:
        return NumberStyle::TwoDigits;
    case 23:
        return NumberStyle::Bullet;
    case 255:
        return NumberStyle::None;
    default:
        return NumberStyle::Arabic;
    }
}

std::string NumberText(NumberStyle style, std::int32_t number)
{
    if (number < 1 && style != NumberStyle::Arabic) return {}; // no letter or Roman numeral is 0
    switch (style) {
    case NumberStyle::UpperRoman:
        return Capitals(Roman(number));
    case NumberStyle::LowerRoman:
        return Roman(number);
    case NumberStyle::UpperLetter:
        return Capitals(Letters(number));
    case NumberStyle::LowerLetter:
        return Letters(number);
    case NumberStyle::Ordinal:
        return Ordinal(number);
    case NumberStyle::TwoDigits:
        return (number < 10 ? "0" : "") + std::to_string(number);
    case NumberStyle::Bullet:
    case NumberStyle::None:
        return {};
    case NumberStyle::Arabic:
        break;
    }
    return std::to_string(number);
}

void ListTables::StartList()
{
    if (lists_.size() < kMaxLists) lists_.emplace_back();
}

void ListTables::StartLevel()
{
    if (!lists_.empty() && lists_.back().levels.size() < kListLevels)
        lists_.back().levels.emplace_back();
}

ListLevel* ListTables::CurrentLevel()
{
    if (lists_.empty() || lists_.back().levels.empty()) return nullptr;
    return &lists_.back().levels.back();
}

void ListTables::SetListId(std::int32_t id)
{
    if (!lists_.empty()) listOfId_[id] = lists_.size() - 1;
}

void ListTables::StartOverride()
{
    override_ = {};
    overrideLevel_ = 0;
}

void ListTables::SetOverriddenList(std::int32_t id)
{
    override_.list = id;
}

void ListTables::StartOverrideLevel()
{
    ++overrideLevel_;
}

void ListTables::SetOverrideStart(std::int32_t start)
{
    if (overrideLevel_ >= 1 && overrideLevel_ <= kListLevels)
        override_.starts[overrideLevel_ - 1] = start;
}

void ListTables::SetOverrideNumber(std::int32_t number)
{
    if (overrides_.size() < kMaxLists) overrides_[number] = override_;
}

std::optional<std::string> ListTables::NextLabel(std::int32_t number, std::size_t level)
{
    const auto override = overrides_.find(number);
    if (override == overrides_.end()) return std::nullopt;
    const auto index = listOfId_.find(override->second.list);
    if (index == listOfId_.end()) return std::nullopt;
    List& list = lists_[index->second];
    if (level >= list.levels.size()) return std::nullopt;

    ++list.counts[level];
    std::fill(list.counts.begin() + static_cast<std::ptrdiff_t>(level) + 1, list.counts.end(), 0);
    std::string label = Label(list, override->second, level);
    if (label.empty() && list.levels[level].style == NumberStyle::None) return std::nullopt;
    return label;
}

std::string ListTables::Label(const List& list, const Override& override, std::size_t level) const
{
    std::string label;
    for (const char c : Template(list.levels[level].text)) {
        const auto place = static_cast<unsigned char>(c);
        if (label.size() >= kMaxLabelBytes) break;
        if (place >= kListLevels) {
            label += c;
        } else if (place < list.levels.size()) {
            const auto start = override.starts.find(place);
            const std::int64_t first =
                start == override.starts.end() ? list.levels[place].start : start->second;
            const std::int64_t count = std::max(list.counts[place], 1);
            const auto value = std::clamp<std::int64_t>(first + count - 1, 0, 1'000'000);
            label += NumberText(list.levels[place].style, static_cast<std::int32_t>(value));
        }
    }
    return label;
}

} // namespace selvane::rich_text
