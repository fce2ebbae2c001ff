#include "rich_text/lists.h"

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

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t\n");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

// As \levelnfc numbers them; those not known count as Arabic.
NumberStyle NumberStyleOf(std::int32_t code)
{
    if (code == 22) return NumberStyle::TwoDigits;
    if (code == 23) return NumberStyle::Bullet;
    if (code == 255) return NumberStyle::None;
    const bool isInOrder = code >= 0 && code <= static_cast<std::int32_t>(NumberStyle::Ordinal);
    return isInOrder ? static_cast<NumberStyle>(code) : NumberStyle::Arabic;
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

constexpr auto kOldListWords = WordTable<OldList>({
    {"pnlvl",
     [](OldList& list, const Token& word) {
         list.showsLabel = list.isNumbered = true;
         list.level = std::clamp(word.number, 1, kLastListLevel + 1) - 1;
     }},
    {"pnlvlcont", SetKind<false, false>},
    {"pnlvlblt", SetKind<true, false>},
    {"pnlvlbody", SetKind<true, true>},
    {"pncard", SetStyle<NumberStyle::Arabic>},
    {"pndec", SetStyle<NumberStyle::Arabic>},
    {"pnucrm", SetStyle<NumberStyle::UpperRoman>},
    {"pnlcrm", SetStyle<NumberStyle::LowerRoman>},
    {"pnucltr", SetStyle<NumberStyle::UpperLetter>},
    {"pnlcltr", SetStyle<NumberStyle::LowerLetter>},
    {"pnord", SetStyle<NumberStyle::Ordinal>},
    {"pnstart",
     [](OldList& list, const Token& word) { list.start = std::clamp(word.number, 0, kMaxNumber); }},
});

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
            const auto start = override.starts.find(place);
            const std::int64_t first =
                start == override.starts.end() ? list.levels[place].start : start->second;
            const std::int64_t count = std::max(list.counts[place], 1);
            const auto value = std::clamp<std::int64_t>(first + count - 1, 0, kMaxNumber);
            label += NumberText(list.levels[place].style, static_cast<std::int32_t>(value));
        }
    }
    return label;
}

} // namespace

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

bool ListTable::OnWord(const Token& word, Group&)
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
    } else if (word.text == "listid") { // comes after the list's levels
        if (!lists_.empty()) listOfId_[word.number] = &lists_.back();
    } else {
        return false;
    }
    return true;
}

Destination* ListTable::PartOf(std::string_view word)
{
    Level* level = CurrentLevel();
    return word == "leveltext" && level ? &level->label : nullptr;
}

ListTable::Level* ListTable::CurrentLevel()
{
    if (lists_.empty() || lists_.back().levels.empty()) return nullptr;
    return &lists_.back().levels.back();
}

ListTable::List* ListTable::Find(std::int32_t id)
{
    const auto found = listOfId_.find(id);
    return found == listOfId_.end() ? nullptr : found->second;
}

bool ListOverrideTable::OnWord(const Token& word, Group&)
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
        if (overrides_.size() < kMaxLists) overrides_[word.number] = current_;
    } else {
        return false;
    }
    return true;
}

const ListOverrideTable::Override* ListOverrideTable::Find(std::int32_t number) const
{
    const auto found = overrides_.find(number);
    return found == overrides_.end() ? nullptr : &found->second;
}

bool OldList::OnWord(const Token& word, Group&)
{
    return Apply(kOldListWords, *this, word);
}

Destination* OldList::PartOf(std::string_view word)
{
    return word == "pntxtb" ? &before : word == "pntxta" ? &after : nullptr;
}

OldList* Lists::AddOldList()
{
    return oldLists_.size() < kMaxOldLists ? &oldLists_.emplace_back() : nullptr;
}

std::optional<ListItem> Lists::NextItem(const Group& group, std::string storedLabel)
{
    std::string stored = Trimmed(storedLabel);
    if (group.listNumber <= 0) return NextOldItem(group, std::move(stored));
    oldCount_ = 0;
    const auto label = NextLabel(group.listNumber, static_cast<std::size_t>(group.listLevel));
    if (!stored.empty()) return ListItem{group.listLevel, std::move(stored)};
    if (!label) return std::nullopt;
    return ListItem{group.listLevel, Trimmed(*label)};
}

// None if there is no such list, or its paragraphs show no label at all.
std::optional<std::string> Lists::NextLabel(std::int32_t number, std::size_t level)
{
    const ListOverrideTable::Override* override = overrides.Find(number);
    ListTable::List* list = override ? table.Find(override->list) : nullptr;
    if (!list || level >= list->levels.size()) return std::nullopt;

    ++list->counts[level];
    std::fill(list->counts.begin() + static_cast<std::ptrdiff_t>(level) + 1, list->counts.end(), 0);
    std::string label = LabelOf(*list, *override, level);
    if (label.empty() && list->levels[level].style == NumberStyle::None) return std::nullopt;
    return label;
}

std::optional<ListItem> Lists::NextOldItem(const Group& group, std::string stored)
{
    const OldList* list = group.oldList;
    if (!list || !list->showsLabel) {
        oldCount_ = 0;
        if (stored.empty()) return std::nullopt;
        return ListItem{group.listLevel, std::move(stored)};
    }
    const bool goesOn = oldStyle_ == list->style && oldLevel_ == list->level;
    oldStyle_ = list->style;
    oldLevel_ = list->level;
    if (list->isNumbered) oldCount_ = goesOn ? oldCount_ + 1 : 1;
    if (!stored.empty()) return ListItem{list->level, std::move(stored)};
    const std::string number =
        list->isNumbered ? NumberText(list->style, list->start + oldCount_ - 1) : "";
    return ListItem{list->level, Trimmed(list->before.value + number + list->after.value)};
}

} // namespace selvane::rich_text
