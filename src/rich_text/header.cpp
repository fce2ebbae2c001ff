#include "rich_text/header.h"

#include "rich_text/character_sets.h"

#include <algorithm>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kLongestName = 128; // bytes; what follows is dropped
constexpr std::int32_t kHeadingLevels = 6;

std::string LowerCase(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

std::string_view Trimmed(std::string_view text)
{
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

std::int8_t LevelOfStyleName(std::string_view name)
{
    const std::string lower = LowerCase(Trimmed(name));
    const bool isHeading =
        lower.size() == 9 && lower.starts_with("heading ") && lower[8] >= '1' && lower[8] <= '6';
    return static_cast<std::int8_t>(isHeading ? lower[8] - '0' : 0);
}

} // namespace

FontGlyphs GlyphsOfFontName(std::string_view name)
{
    const std::string lower = LowerCase(Trimmed(name));
    for (const char* ornaments : {"wingdings", "webdings", "dingbats", "monotype sorts", "marlett"})
        if (lower.find(ornaments) != std::string::npos) return FontGlyphs::Ornaments;
    return lower == "symbol" ? FontGlyphs::Symbol : FontGlyphs::Text;
}

FontTable::Entry* FontTable::Current()
{
    const auto found = fonts_.find(current_);
    return found == fonts_.end() ? nullptr : &found->second;
}

void FontTable::Start(std::int32_t number)
{
    current_ = number;
    if (fonts_.size() < kMaxHeaderEntries) fonts_[number] = {};
}

void FontTable::SetCharacterSet(std::int32_t characterSet)
{
    if (Entry* font = Current()) font->characterSet = characterSet;
}

void FontTable::SetPage(std::int32_t page)
{
    if (Entry* font = Current()) font->page = KnownPage(page);
}

void FontTable::AddName(std::string_view text)
{
    Entry* font = Current();
    if (!font || font->named) return;
    const std::size_t end = text.find(';');
    font->named = end != std::string_view::npos;
    const std::size_t room = kLongestName - std::min(font->name.size(), kLongestName);
    if (text.substr(0, end).size() <= room) font->name += text.substr(0, end);
    font->glyphs = GlyphsOfFontName(font->name);
}

std::int32_t FontTable::Page(std::int32_t font) const
{
    const auto found = fonts_.find(font);
    if (found == fonts_.end()) return 0;
    return found->second.page != 0 ? found->second.page
                                   : PageOfCharacterSet(found->second.characterSet);
}

FontGlyphs FontTable::Glyphs(std::int32_t font) const
{
    const auto found = fonts_.find(font);
    if (found == fonts_.end()) return FontGlyphs::Text;
    const Entry& entry = found->second;
    const bool isSymbol =
        entry.glyphs == FontGlyphs::Text && entry.characterSet == kSymbolCharacterSet;
    return isSymbol ? FontGlyphs::Symbol : entry.glyphs;
}

std::map<std::int32_t, std::string> FontTable::Names() const
{
    std::map<std::int32_t, std::string> names;
    for (const auto& [number, font] : fonts_) names[number] = Trimmed(font.name);
    return names;
}

void ColourTable::SetChannel(Channel channel, std::int32_t value)
{
    if (!next_) next_ = Colour{};
    const auto level = static_cast<std::uint8_t>(std::clamp(value, 0, 255));
    switch (channel) {
    case Channel::Red:
        next_->red = level;
        break;
    case Channel::Green:
        next_->green = level;
        break;
    case Channel::Blue:
        next_->blue = level;
        break;
    }
}

void ColourTable::AddText(std::string_view text)
{
    for (const char c : text) {
        if (c != ';') continue;
        if (colours_.size() < kMaxHeaderEntries) colours_.push_back(next_);
        next_.reset();
    }
}

void ColourTable::Close()
{
    if (next_) AddText(";");
}

std::optional<Colour> ColourTable::Find(std::int32_t number) const
{
    if (number < 0 || static_cast<std::size_t>(number) >= colours_.size()) return std::nullopt;
    return colours_[static_cast<std::size_t>(number)];
}

void HeadingStyles::AddName(std::string_view text, std::int32_t outline)
{
    const std::size_t end = text.find(';');
    if (name_.size() <= kLongestName) name_ += text.substr(0, std::min(end, kLongestName));
    if (end == std::string_view::npos) return;
    std::int8_t level = LevelOfStyleName(name_);
    if (level == 0 && outline >= 0 && outline < kHeadingLevels)
        level = static_cast<std::int8_t>(outline + 1);
    if (levels_.size() < kMaxHeaderEntries) levels_[current_] = level;
    current_ = 0;
    name_.clear();
}

std::int8_t HeadingStyles::Level(std::int32_t style) const
{
    const auto found = levels_.find(style);
    return found == levels_.end() ? std::int8_t{0} : found->second;
}

} // namespace selvane::rich_text
