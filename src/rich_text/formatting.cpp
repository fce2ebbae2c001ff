// What the words about characters and paragraphs do.
#include "rich_text/words.h"

#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::int32_t kDefaultSize = 24;   // half-points
constexpr std::int32_t kLargestSize = 3276; // half-points
constexpr std::int32_t kDefaultRaise = 6;   // half-points
constexpr std::int32_t kMaxUnicodeSkip = 1000;
constexpr std::int32_t kLastHeadingOutline = 5;
constexpr std::size_t kMaxTabStops = 32;

bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// The parameter of \u is a signed 16-bit number; some writers give the code point itself.
char32_t UnicodeOf(std::int32_t number)
{
    const std::int32_t unit = number < 0 && number >= -0x8000 ? number + 0x10000 : number;
    return unit < 0 || unit > 0x10FFFF ? U'\0' : static_cast<char32_t>(unit);
}

} // namespace

void RichTextInterpreter::CharacterSet(const Token&, std::int32_t page)
{
    characterSetPage_ = page;
}

void RichTextInterpreter::CodePage(const Token& token, std::int32_t)
{
    codePage_ = KnownPage(NumberOf(token));
}

void RichTextInterpreter::DefaultFont(const Token& token, std::int32_t)
{
    defaultFont_ = NumberOf(token);
}

void RichTextInterpreter::Font(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::FontTable)
        fonts_.Start(NumberOf(token));
    else
        state_.character.font = std::max(NumberOf(token), 0);
}

void RichTextInterpreter::FontCharacterSet(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::FontTable) fonts_.SetCharacterSet(NumberOf(token));
}

void RichTextInterpreter::FontCodePage(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::FontTable) fonts_.SetPage(NumberOf(token));
}

void RichTextInterpreter::ColourChannel(const Token& token, std::int32_t channel)
{
    if (state_.destination != Destination::ColourTable) return;
    colours_.SetChannel(static_cast<ColourTable::Channel>(channel), NumberOf(token));
}

void RichTextInterpreter::UnicodeSkip(const Token& token, std::int32_t)
{
    state_.unicodeSkip = token.hasNumber ? std::clamp(token.number, 0, kMaxUnicodeSkip) : 1;
}

void RichTextInterpreter::Unicode(const Token& token, std::int32_t)
{
    if (!token.hasNumber) return;
    const char32_t unit = UnicodeOf(token.number);
    const char32_t high = std::exchange(highSurrogate_, 0);
    if (IsHighSurrogate(unit)) {
        decoder_.Reset();
        highSurrogate_ = unit;
    } else if (!IsLowSurrogate(unit)) {
        EmitUnicode(unit);
    } else if (high != 0) {
        EmitUnicode(0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00));
    }
    toSkip_ = state_.unicodeSkip;
}

void RichTextInterpreter::Character(const Token&, std::int32_t character)
{
    EmitCharacter(static_cast<char32_t>(character));
}

void RichTextInterpreter::NoUnderline(const Token&, std::int32_t)
{
    state_.character.underline = false;
}

void RichTextInterpreter::Hidden(const Token& token, std::int32_t)
{
    state_.hidden = IsOn(token);
}

void RichTextInterpreter::Deleted(const Token& token, std::int32_t)
{
    state_.deleted = IsOn(token);
}

void RichTextInterpreter::Position(const Token& token, std::int32_t position)
{
    const auto wanted = static_cast<VerticalPosition>(position);
    state_.character.position = IsOn(token) ? wanted : VerticalPosition::Baseline;
    state_.character.raise = 0;
}

void RichTextInterpreter::Raise(const Token& token, std::int32_t sign)
{
    const std::int32_t raise = token.hasNumber ? token.number : kDefaultRaise;
    const std::int32_t limited = std::clamp(raise, -kLargestSize, kLargestSize);
    state_.character.raise = static_cast<std::int16_t>(sign * limited);
}

void RichTextInterpreter::FontSize(const Token& token, std::int32_t)
{
    const std::int32_t size = NumberOf(token) > 0 ? NumberOf(token) : kDefaultSize;
    state_.character.size = static_cast<std::int16_t>(std::clamp(size, 2, kLargestSize));
}

void RichTextInterpreter::TextColour(const Token& token, std::int32_t)
{
    state_.character.colour = colours_.Find(NumberOf(token));
}

void RichTextInterpreter::Background(const Token& token, std::int32_t)
{
    state_.character.background = colours_.Find(NumberOf(token));
}

void RichTextInterpreter::Plain(const Token&, std::int32_t)
{
    state_.character = {};
    state_.hidden = false;
    state_.deleted = false;
}

void RichTextInterpreter::ResetParagraph(const Token&, std::int32_t)
{
    state_.paragraph = {};
    state_.style = 0;
    state_.outline = -1;
    state_.listNumber = 0;
    state_.listLevel = 0;
    state_.oldList = -1;
    state_.tableNesting = 0;
    nextTabKind_ = TabKind::Left;
    // No font or colour is a paragraph: the brace that ends their table is missing.
    const bool isUnclosedHeader = state_.destination == Destination::FontTable ||
                                  state_.destination == Destination::ColourTable;
    if (isUnclosedHeader) state_.destination = Destination::Body;
}

void RichTextInterpreter::Align(const Token&, std::int32_t alignment)
{
    state_.paragraph.alignment = static_cast<ParagraphAlignment>(alignment);
}

void RichTextInterpreter::LineSpacing(const Token& token, std::int32_t)
{
    // Negative means "exactly", positive "at least"; a pane can do with one of them.
    const std::int32_t spacing = std::clamp(NumberOf(token), -kLongestLength, kLongestLength);
    state_.paragraph.lineSpacing = spacing < 0 ? -spacing : spacing;
}

void RichTextInterpreter::NextTabKind(const Token&, std::int32_t kind)
{
    nextTabKind_ = static_cast<TabKind>(kind);
}

void RichTextInterpreter::AddTabStop(const Token& token, std::int32_t)
{
    const TabKind kind = std::exchange(nextTabKind_, TabKind::Left);
    if (state_.paragraph.tabStops.size() >= kMaxTabStops) return;
    const std::int32_t position = std::clamp(NumberOf(token), -kLongestLength, kLongestLength);
    state_.paragraph.tabStops.push_back({position, kind});
}

void RichTextInterpreter::Style(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::StyleSheet)
        headings_.Start(NumberOf(token));
    else
        state_.style = NumberOf(token);
}

void RichTextInterpreter::Outline(const Token& token, std::int32_t)
{
    state_.outline = std::clamp(NumberOf(token), 0, 9);
}

ParagraphFormat RichTextInterpreter::FinishedFormat() const
{
    ParagraphFormat format = state_.paragraph;
    if (state_.outline < 0)
        format.headingLevel = headings_.Level(state_.style);
    else if (state_.outline <= kLastHeadingOutline)
        format.headingLevel = static_cast<std::int8_t>(state_.outline + 1);
    return format;
}

void RichTextInterpreter::EndParagraphAt(std::size_t depth)
{
    decoder_.Reset();
    highSurrogate_ = 0;
    Flow().EndParagraph(FinishedFormat(), FinishedItem(), depth);
}

void RichTextInterpreter::EndParagraph(const Token&, std::int32_t)
{
    if (IsInBody()) EndParagraphAt(static_cast<std::size_t>(state_.tableNesting));
}

void RichTextInterpreter::Break(const Token& token, std::int32_t)
{
    if (Flow().HasPendingRuns()) EndParagraph(token, 0);
}

} // namespace selvane::rich_text
