#include "rich_text/formats.h"

#include "rich_text/lists.h"
#include "rich_text/words.h"

#include <limits>
#include <type_traits>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::int32_t kLargestSize = 3276; // half-points
constexpr std::int32_t kDefaultRaise = 6;   // half-points
constexpr std::size_t kMaxTabStops = 32;
constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
constexpr auto kMost = std::numeric_limits<std::int32_t>::max();

// A member of a group, or of what it says of characters or paragraphs.
template <typename Class, typename Value> Value& In(Group& group, Value Class::*member)
{
    if constexpr (std::is_base_of_v<Class, CharacterState>)
        return group.character.*member;
    else if constexpr (std::is_base_of_v<Class, ParagraphState>)
        return group.paragraph.*member;
    else
        return group.*member;
}

template <auto Member, auto Value> void Set(Group& group, const Token&)
{
    In(group, Member) = Value;
}

template <auto Member> void Switch(Group& group, const Token& word)
{
    In(group, Member) = word.IsOn();
}

template <auto Member, std::int32_t Least, std::int32_t Most>
void Number(Group& group, const Token& word)
{
    In(group, Member) = std::clamp(word.number, Least, Most);
}

template <VerticalPosition Position> void Raise(Group& group, const Token& word)
{
    group.character.position = word.IsOn() ? Position : VerticalPosition::Baseline;
    group.character.raise = 0;
}

template <int Sign> void Shift(Group& group, const Token& word)
{
    const std::int32_t raise = word.hasNumber ? word.number : kDefaultRaise;
    group.character.raise =
        static_cast<std::int16_t>(Sign * std::clamp(raise, -kLargestSize, kLargestSize));
}

void SetSize(Group& group, const Token& word)
{
    const std::int32_t size = word.number > 0 ? word.number : CharacterFormat().size;
    group.character.size = static_cast<std::int16_t>(std::clamp(size, 2, kLargestSize));
}

void AddTabStop(Group& group, const Token& word)
{
    const TabKind kind = std::exchange(group.paragraph.nextTabKind, TabKind::Left);
    std::vector<TabStop>& stops = group.paragraph.tabStops;
    if (stops.size() < kMaxTabStops)
        stops.push_back({std::clamp(word.number, -kLongestLength, kLongestLength), kind});
}

constexpr WordTable<Group, 256> kFormatWords{
    {"b", Switch<&CharacterState::bold>},
    {"i", Switch<&CharacterState::italic>},
    {"strike striked", Switch<&CharacterState::strike>},
    {"caps", Switch<&CharacterState::allCapitals>},
    {"scaps", Switch<&CharacterState::smallCapitals>},
    {"ul uld uldash uldashd uldashdd uldb ulhair ulhwave ulldash ulth ulthd ulthdash ulthdashd "
     "ulthdashdd ulthldash ululdbwave ulw ulwave",
     Switch<&CharacterState::underline>},
    {"ulnone", Set<&CharacterState::underline, false>},
    {"super", Raise<VerticalPosition::Superscript>},
    {"sub", Raise<VerticalPosition::Subscript>},
    {"nosupersub", Raise<VerticalPosition::Baseline>},
    {"up", Shift<1>},
    {"dn", Shift<-1>},
    {"f", Number<&CharacterState::font, 0, kMost>},
    {"fs", SetSize},
    {"v", Switch<&CharacterState::hidden>},
    {"deleted", Switch<&CharacterState::deleted>},
    {"plain", [](Group& group, const Token&) { group.character = {}; }},
    {"uc",
     [](Group& group, const Token& word) {
         group.unicodeSkip = word.hasNumber ? std::clamp(word.number, 0, 1000) : 1;
     }},

    {"ql", Set<&ParagraphState::alignment, ParagraphAlignment::Left>},
    {"qc", Set<&ParagraphState::alignment, ParagraphAlignment::Centre>},
    {"qr", Set<&ParagraphState::alignment, ParagraphAlignment::Right>},
    {"qj", Set<&ParagraphState::alignment, ParagraphAlignment::Justified>},
    {"li", Number<&ParagraphState::leftIndent, -kLongestLength, kLongestLength>},
    {"ri", Number<&ParagraphState::rightIndent, -kLongestLength, kLongestLength>},
    {"fi", Number<&ParagraphState::firstLineIndent, -kLongestLength, kLongestLength>},
    {"sb", Number<&ParagraphState::spaceBefore, 0, kLongestLength>},
    {"sa", Number<&ParagraphState::spaceAfter, 0, kLongestLength>},
    {"sl", Number<&ParagraphState::lineSpacing, -kLongestLength, kLongestLength>},
    {"slmult", Switch<&ParagraphState::lineSpacingIsMultiple>},
    {"pagebb", Switch<&ParagraphState::pageBreakBefore>},
    {"ltrpar", Set<&ParagraphState::rightToLeft, false>},
    {"rtlpar", Switch<&ParagraphState::rightToLeft>},
    {"tqr", Set<&ParagraphState::nextTabKind, TabKind::Right>},
    {"tqc", Set<&ParagraphState::nextTabKind, TabKind::Centre>},
    {"tqdec", Set<&ParagraphState::nextTabKind, TabKind::Decimal>},
    {"tx", AddTabStop},
    {"s", Number<&ParagraphState::style, kLeast, kMost>},
    {"outlinelevel", Number<&ParagraphState::outline, 0, 9>},
    {"ls", Number<&ParagraphState::listNumber, kLeast, kMost>},
    {"ilvl", Number<&ParagraphState::listLevel, 0, kLastListLevel>},
    {"itap", Number<&ParagraphState::tableNesting, 0, 1000>},
    {"intbl",
     [](Group& group, const Token& word) {
         std::int32_t& nesting = group.paragraph.tableNesting;
         nesting = word.IsOn() ? std::max(nesting, 1) : 0;
     }},
};

} // namespace

bool ApplyFormatWord(const Token& word, Group& group)
{
    return kFormatWords.Apply(group, word);
}

} // namespace selvane::rich_text
