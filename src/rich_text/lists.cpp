#include "rich_text/lists.h"

#include "rich_text/ascii.h"
#include "rich_text/words.h"

#include <algorithm>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxLists = 8192;
constexpr std::size_t kMaxOldLists = 65'536;
constexpr std::int32_t kMaxNumber = 1'000'000;
constexpr std::int32_t kLongestRoman = 3999;

std::string Roman(std::int32_t number)
{
    static constexpr std::pair<std::int32_t, const char*> kNumerals[] = {
        {1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"}, {90, "xc"}, {50, "l"},
        {40, "xl"},  {10, "x"},   {9, "ix"},  {5, "v"},    {4, "iv"},  {1, "i"},
    };
    if (number > kLongestRoman) return std::to_string(number);
    std::string text;
    for (const auto& [value, letters] : kNumerals)
        for (; number >= value; number -= value) text += letters;
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

// "4", "IV", "iv", "D", "d", "4th", "04"; empty for bullets, for None and below 1.
std::string NumberText(NumberStyle style, std::int32_t number)
{
    if (number < 1 && style != NumberStyle::Arabic) return {}; // no letter or Roman numeral is 0
    if (style == NumberStyle::UpperRoman) return Capitals(Roman(number));
    if (style == NumberStyle::LowerRoman) return Roman(number);
    if (style == NumberStyle::UpperLetter) return Capitals(Letters(number));
    if (style == NumberStyle::LowerLetter) return Letters(number);
    if (style == NumberStyle::Ordinal) return Ordinal(number);
    if (style == NumberStyle::Bullet || style == NumberStyle::None) return {};
    return (style == NumberStyle::TwoDigits && number < 10 ? "0" : "") + std::to_string(number);
}

// Drops the stored length in front and the semicolon behind.
std::string_view Template(std::string_view stored)
{
    if (!stored.empty()) stored.remove_prefix(1);
    if (stored.ends_with(';')) stored.remove_suffix(1);
    return stored;
}

// Those not known count as Arabic.
NumberStyle NumberStyleOf(std::int32_t code)
{
    const bool isKnown = (code >= 0 && code <= 5) || code == 22 || code == 23 || code == 255;
    return static_cast<NumberStyle>(isKnown ? code : 0);
}

template <bool ShowsLabel, bool IsNumbered> void SetKind(OldList& list, const Token&)
{
    list.showsLabel = ShowsLabel;
    list.isNumbered = IsNumbered;
}

template <NumberStyle Style> void SetStyle(OldList& list, const Token&)
{
    list.style = Style;
}

constexpr WordTable<OldList, 32> kOldListWords{
    {"pnlvl",
     [](OldList& list, const Token& word) {
         list.showsLabel = list.isNumbered = true;
         list.level = std::clamp(word.number, 1, kLastListLevel + 1) - 1;
     }},
    {"pnlvlcont", SetKind<false, false>},
    {"pnlvlblt", SetKind<true, false>},
    {"pnlvlbody", SetKind<true, true>},
    {"pncard pndec", SetStyle<NumberStyle::Arabic>},
    {"pnucrm", SetStyle<NumberStyle::UpperRoman>},
    {"pnlcrm", SetStyle<NumberStyle::LowerRoman>},
    {"pnucltr", SetStyle<NumberStyle::UpperLetter>},
    {"pnlcltr", SetStyle<NumberStyle::LowerLetter>},
    {"pnord", SetStyle<NumberStyle::Ordinal>},
    {"pnstart",
     [](OldList& list, const Token& word) { list.start = std::clamp(word.number, 0, kMaxNumber); }},
};

// The label of an item by the texts of its list's levels.
std::string LabelOf(const ListTable::List& list, const ListOverrideTable::Override& override,
                    std::size_t level)
{
    std::string label;
    for (const char c : Template(list.levels[level].label.value)) {
        const auto place = static_cast<unsigned char>(c);
        if (label.size() >= kMaxLabelBytes && (place & 0xC0) != 0x80) break; // whole characters
        if (place >= kListLevels) {
            label += c;
        } else if (place < list.levels.size()) {
            const std::int64_t first = override.starts[place].value_or(list.levels[place].start);
            const std::int64_t count = std::max(list.counts[place], 1);
            const auto value = std::clamp<std::int64_t>(first + count - 1, 0, kMaxNumber);
            label += NumberText(list.levels[place].style, static_cast<std::int32_t>(value));
        }
    }
    return label;
}

} // namespace

Destination* ListTable::OnWord(const Token& word)
{
    Level* level = CurrentLevel();
    if (word.text == "list") {
        if (lists_.size() < kMaxLists) lists_.emplace_back();
    } else if (word.text == "listlevel") {
        if (!lists_.empty() && lists_.back().levels.size() < kListLevels)
            lists_.back().levels.emplace_back();
    } else if (word.text == "levelnfc") {
        if (level) level->style = NumberStyleOf(word.number);
    } else if (word.text == "levelstartat") {
        if (level) level->start = word.number;
    } else if (word.text == "leveltext") {
        return level ? &level->label : nullptr;
    } else if (word.text == "listid") { // comes after the list's levels
        if (!lists_.empty()) byId[word.number] = &lists_.back();
    } else {
        return nullptr;
    }
    return this;
}

ListTable::Level* ListTable::CurrentLevel()
{
    if (lists_.empty() || lists_.back().levels.empty()) return nullptr;
    return &lists_.back().levels.back();
}

Destination* ListOverrideTable::OnWord(const Token& word)
{
    if (word.text == "listoverride") {
        current_ = {};
        level_ = 0;
    } else if (word.text == "listid") {
        current_.list = word.number;
    } else if (word.text == "lfolevel") {
        ++level_;
    } else if (word.text == "levelstartat") {
        if (level_ >= 1 && level_ <= kListLevels) current_.starts[level_ - 1] = word.number;
    } else if (word.text == "ls") {
        if (byNumber.size() < kMaxLists) byNumber[word.number] = current_;
    } else {
        return nullptr;
    }
    return this;
}

Destination* OldList::OnWord(const Token& word)
{
    if (word.text == "pntxtb") return &before;
    if (word.text == "pntxta") return &after;
    return kOldListWords.Apply(*this, word) ? this : nullptr;
}

OldList* Lists::AddOldList()
{
    return oldLists_.size() < kMaxOldLists ? &oldLists_.emplace_back() : nullptr;
}

std::optional<ListItem> Lists::NextItem(const ParagraphState& paragraph,
                                        std::string_view storedLabel)
{
    constexpr std::string_view kBlanks = " \t\n";
    const bool isNew = paragraph.listNumber > 0;
    const bool isOld = !isNew && paragraph.oldList && paragraph.oldList->showsLabel;
    const std::int32_t level = isOld ? paragraph.oldList->level : paragraph.listLevel;
    std::optional<std::string> label;
    if (isNew) label = NextLabel(paragraph.listNumber, static_cast<std::size_t>(level));
    if (isOld)
        label = NextOldLabel(*paragraph.oldList);
    else
        oldCount_ = 0;
    const std::string_view stored = Trimmed(storedLabel, kBlanks);
    if (!label && stored.empty()) return std::nullopt;
    return ListItem{level, std::string(stored.empty() ? Trimmed(*label, kBlanks) : stored)};
}

// None if there is no such list, or its paragraphs show no label at all.
std::optional<std::string> Lists::NextLabel(std::int32_t number, std::size_t level)
{
    const auto override = overrides.byNumber.find(number);
    if (override == overrides.byNumber.end()) return std::nullopt;
    const auto found = table.byId.find(override->second.list);
    if (found == table.byId.end() || level >= found->second->levels.size()) return std::nullopt;

    ListTable::List& list = *found->second;
    ++list.counts[level];
    std::fill(list.counts.data() + level + 1, list.counts.data() + kListLevels, 0);
    std::string label = LabelOf(list, override->second, level);
    if (label.empty() && list.levels[level].style == NumberStyle::None) return std::nullopt;
    return label;
}

std::string Lists::NextOldLabel(const OldList& list)
{
    const bool goesOn = oldStyle_ == list.style && oldLevel_ == list.level;
    oldStyle_ = list.style;
    oldLevel_ = list.level;
    if (!list.isNumbered) return list.before.value + list.after.value;
    oldCount_ = goesOn ? oldCount_ + 1 : 1;
    return list.before.value + NumberText(list.style, list.start + oldCount_ - 1) +
           list.after.value;
}

} // namespace selvane::rich_text
