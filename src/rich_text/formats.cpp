#include "rich_text/formats.h"

#include "rich_text/header_tables.h"
#include "rich_text/lists.h"
#include "rich_text/words.h"

#include <limits>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::int32_t kDefaultSize = 24;   // half-points
constexpr std::int32_t kLargestSize = 3276; // half-points
constexpr std::int32_t kDefaultRaise = 6;   // half-points
constexpr std::int32_t kMaxUnicodeSkip = 1000;
constexpr std::size_t kMaxTabStops = 32;
constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
constexpr auto kMost = std::numeric_limits<std::int32_t>::max();

struct Target
{
    Group& group;
    const ColourTable& colours;
};

template <auto Member> void Toggle(Target& to, const Token& word)
{
    to.group.character.*Member = word.IsOn();
}

template <VerticalPosition Position> void Raise(Target& to, const Token& word)
{
    to.group.character.position = word.IsOn() ? Position : VerticalPosition::Baseline;
    to.group.character.raise = 0;
}

template <int Sign> void Shift(Target& to, const Token& word)
{
    const std::int32_t raise = word.hasNumber ? word.number : kDefaultRaise;
    to.group.character.raise =
        static_cast<std::int16_t>(Sign * std::clamp(raise, -kLargestSize, kLargestSize));
}

template <auto Member> void Paint(Target& to, const Token& word)
{
    to.group.character.*Member = to.colours.Find(word.number);
}

template <ParagraphAlignment Alignment> void Align(Target& to, const Token&)
{
    to.group.paragraph.alignment = Alignment;
}

template <auto Member, std::int32_t Least> void Length(Target& to, const Token& word)
{
    to.group.paragraph.*Member = std::clamp(word.number, Least, kLongestLength);
}

template <auto Member> void Flag(Target& to, const Token& word)
{
    to.group.paragraph.*Member = word.IsOn();
}

template <auto Member, std::int32_t Least, std::int32_t Most>
void Number(Target& to, const Token& word)
{
    to.group.*Member = std::clamp(word.number, Least, Most);
}

template <auto Member> void Switch(Target& to, const Token& word)
{
    to.group.*Member = word.IsOn();
}

template <TabKind Kind> void NextTab(Target& to, const Token&)
{
    to.group.nextTabKind = Kind;
}

void AddTabStop(Target& to, const Token& word)
{
    const TabKind kind = std::exchange(to.group.nextTabKind, TabKind::Left);
    std::vector<TabStop>& stops = to.group.paragraph.tabStops;
    if (stops.size() < kMaxTabStops)
        stops.push_back({std::clamp(word.number, -kLongestLength, kLongestLength), kind});
}

void ResetParagraph(Target& to, const Token&)
{
    to.group.paragraph = {};
    to.group.nextTabKind = TabKind::Left;
    to.group.style = 0;
    to.group.outline = -1;
    to.group.listNumber = 0;
    to.group.listLevel = 0;
    to.group.oldList = nullptr;
    to.group.tableNesting = 0;
}

constexpr auto kUnderlines = SortedNames({
    "ul",
    "uld",
    "uldash",
    "uldashd",
    "uldashdd",
    "uldb",
    "ulhair",
    "ulhwave",
    "ulldash",
    "ulth",
    "ulthd",
    "ulthdash",
    "ulthdashd",
    "ulthdashdd",
    "ulthldash",
    "ululdbwave",
    "ulw",
    "ulwave",
});

using Character = CharacterFormat;
using Format = ParagraphFormat;

constexpr auto kFormatWords = WordTable<Target>({
    {"b", Toggle<&Character::bold>},
    {"i", Toggle<&Character::italic>},
    {"strike", Toggle<&Character::strike>},
    {"striked", Toggle<&Character::strike>},
    {"caps", Toggle<&Character::allCapitals>},
    {"scaps", Toggle<&Character::smallCapitals>},
    {"ulnone", [](Target& to, const Token&) { to.group.character.underline = false; }},
    {"super", Raise<VerticalPosition::Superscript>},
    {"sub", Raise<VerticalPosition::Subscript>},
    {"nosupersub", Raise<VerticalPosition::Baseline>},
    {"up", Shift<1>},
    {"dn", Shift<-1>},
    {"f",
     [](Target& to, const Token& word) { to.group.character.font = std::max(word.number, 0); }},
    {"fs",
     [](Target& to, const Token& word) {
         const std::int32_t size = word.number > 0 ? word.number : kDefaultSize;
         to.group.character.size = static_cast<std::int16_t>(std::clamp(size, 2, kLargestSize));
     }},
    {"cf", Paint<&Character::colour>},
    {"cb", Paint<&Character::background>},
    {"highlight", Paint<&Character::background>},
    {"chcbpat", Paint<&Character::background>},
    {"v", Switch<&Group::hidden>},
    {"deleted", Switch<&Group::deleted>},
    {"plain",
     [](Target& to, const Token&) {
         to.group.character = {};
         to.group.hidden = to.group.deleted = false;
     }},
    {"uc",
     [](Target& to, const Token& word) {
         to.group.unicodeSkip = word.hasNumber ? std::clamp(word.number, 0, kMaxUnicodeSkip) : 1;
     }},

    {"pard", ResetParagraph},
    {"ql", Align<ParagraphAlignment::Left>},
    {"qc", Align<ParagraphAlignment::Centre>},
    {"qr", Align<ParagraphAlignment::Right>},
    {"qj", Align<ParagraphAlignment::Justified>},
    {"li", Length<&Format::leftIndent, -kLongestLength>},
    {"ri", Length<&Format::rightIndent, -kLongestLength>},
    {"fi", Length<&Format::firstLineIndent, -kLongestLength>},
    {"sb", Length<&Format::spaceBefore, 0>},
    {"sa", Length<&Format::spaceAfter, 0>},
    {"sl", Length<&Format::lineSpacing, -kLongestLength>},
    {"slmult", Flag<&Format::lineSpacingIsMultiple>},
    {"pagebb", Flag<&Format::pageBreakBefore>},
    {"ltrpar", [](Target& to, const Token&) { to.group.paragraph.rightToLeft = false; }},
    {"rtlpar", Flag<&Format::rightToLeft>},
    {"tqr", NextTab<TabKind::Right>},
    {"tqc", NextTab<TabKind::Centre>},
    {"tqdec", NextTab<TabKind::Decimal>},
    {"tx", AddTabStop},
    {"s", Number<&Group::style, kLeast, kMost>},
    {"outlinelevel", Number<&Group::outline, 0, 9>},
    {"ls", Number<&Group::listNumber, kLeast, kMost>},
    {"ilvl", Number<&Group::listLevel, 0, kLastListLevel>},
    {"itap", Number<&Group::tableNesting, 0, 1000>},
    {"intbl",
     [](Target& to, const Token& word) {
         to.group.tableNesting = word.IsOn() ? std::max(to.group.tableNesting, 1) : 0;
     }},
});

} // namespace

bool ApplyFormatWord(const Token& word, Group& group, const ColourTable& colours)
{
    Target target{group, colours};
    if (Apply(kFormatWords, target, word)) return true;
    if (!std::ranges::binary_search(kUnderlines, word.text)) return false;
    group.character.underline = word.IsOn();
    return true;
}

} // namespace selvane::rich_text
