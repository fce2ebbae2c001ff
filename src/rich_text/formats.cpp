#include "rich_text/formats.h"

#include "rich_text/header_tables.h"
#include "rich_text/lists.h"
#include "rich_text/words.h"

#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::int32_t kDefaultSize = 24;   // half-points
constexpr std::int32_t kLargestSize = 3276; // half-points
constexpr std::int32_t kDefaultRaise = 6;   // half-points
constexpr std::int32_t kMaxUnicodeSkip = 1000;
constexpr std::size_t kMaxTabStops = 32;

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

void Background(Target& to, const Token& word)
{
    to.group.character.background = to.colours.Find(word.number);
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
    {"cf", [](Target& to,
              const Token& word) { to.group.character.colour = to.colours.Find(word.number); }},
    {"cb", Background},
    {"highlight", Background},
    {"chcbpat", Background},
    {"v", [](Target& to, const Token& word) { to.group.hidden = word.IsOn(); }},
    {"deleted", [](Target& to, const Token& word) { to.group.deleted = word.IsOn(); }},
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
    {"s", [](Target& to, const Token& word) { to.group.style = word.number; }},
    {"outlinelevel",
     [](Target& to, const Token& word) { to.group.outline = std::clamp(word.number, 0, 9); }},
    {"ls", [](Target& to, const Token& word) { to.group.listNumber = word.number; }},
    {"ilvl",
     [](Target& to, const Token& word) {
         to.group.listLevel = std::clamp(word.number, 0, kLastListLevel);
     }},
    {"intbl",
     [](Target& to, const Token& word) {
         to.group.tableNesting = word.IsOn() ? std::max(to.group.tableNesting, 1) : 0;
     }},
    {"itap", [](Target& to,
                const Token& word) { to.group.tableNesting = std::clamp(word.number, 0, 1000); }},
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
