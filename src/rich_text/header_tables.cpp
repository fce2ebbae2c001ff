#include "rich_text/header_tables.h"

#include "rich_text/code_pages.h"

#include <algorithm>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxEntries = 65'536; // of each table; more are ignored
constexpr std::size_t kLongestName = 128;   // bytes; what follows is dropped
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

Glyphs GlyphsOfFontName(std::string_view name)
{
    const std::string lower = LowerCase(Trimmed(name));
    for (const char* ornaments : {"wingdings", "webdings", "dingbats", "monotype sorts", "marlett"})
        if (lower.find(ornaments) != std::string::npos) return Glyphs::Ornaments;
    return lower == "symbol" ? Glyphs::Symbol : Glyphs::Text;
}

bool FontTable::OnWord(const Token& word, Group&)
{
    Font* font = Current();
    if (word.text == "f") {
        current_ = word.number;
        if (fonts_.size() < kMaxEntries) fonts_[current_] = {};
    } else if (word.text == "fcharset") {
        if (font) font->characterSet = word.number;
    } else if (word.text == "cpg") {
        if (font) font->page = KnownPage(word.number);
    } else {
        return false;
    }
    return true;
}

FontTable::Font* FontTable::Current()
{
    const auto found = fonts_.find(current_);
    return found == fonts_.end() ? nullptr : &found->second;
}

void FontTable::OnText(std::string_view text, const Group&)
{
    Font* font = Current();
    if (!font || font->named) return;
    const std::size_t end = text.find(';');
    font->named = end != std::string_view::npos;
    const std::size_t left = kLongestName - std::min(font->name.size(), kLongestName);
    if (text.substr(0, end).size() <= left) font->name += text.substr(0, end);
    font->glyphs = GlyphsOfFontName(font->name);
}

void FontTable::SetCodePage(std::int32_t page)
{
    codePage_ = KnownPage(page);
}

std::int32_t FontTable::PageOf(std::int32_t font) const
{
    const std::int32_t otherwise = codePage_ != 0 ? codePage_ : characterSetPage_;
    const auto found = fonts_.find(font);
    if (found == fonts_.end()) return otherwise;
    if (found->second.page != 0) return found->second.page;
    const std::int32_t page = PageOfCharacterSet(found->second.characterSet);
    return page != 0 ? page : otherwise;
}

Encoding FontTable::EncodingOf(std::int32_t number) const
{
    const std::int32_t font = number < 0 ? defaultFont_ : number;
    const auto found = fonts_.find(font);
    Glyphs glyphs = found == fonts_.end() ? Glyphs::Text : found->second.glyphs;
    const bool isSymbol = glyphs == Glyphs::Text && found != fonts_.end() &&
                          found->second.characterSet == kSymbolCharacterSet;
    return {isSymbol ? Glyphs::Symbol : glyphs, PageOf(font)};
}

Encoding FontTable::EncodingOfNames() const
{
    return {Glyphs::Text, PageOf(current_)};
}

std::map<std::int32_t, std::string> FontTable::Names() const
{
    std::map<std::int32_t, std::string> names;
    for (const auto& [number, font] : fonts_) names[number] = Trimmed(font.name);
    return names;
}

bool ColourTable::OnWord(const Token& word, Group&)
{
    const auto level = static_cast<std::uint8_t>(std::clamp(word.number, 0, 255));
    if (word.text == "red")
        Next().red = level;
    else if (word.text == "green")
        Next().green = level;
    else if (word.text == "blue")
        Next().blue = level;
    else
        return false;
    return true;
}

Colour& ColourTable::Next()
{
    return next_ ? *next_ : next_.emplace();
}

void ColourTable::OnText(std::string_view text, const Group&)
{
    for (const char c : text) {
        if (c != ';') continue;
        if (colours_.size() < kMaxEntries) colours_.push_back(next_);
        next_.reset();
    }
}

void ColourTable::OnEnd(const Group& group)
{
    if (next_) OnText(";", group);
}

std::optional<Colour> ColourTable::Find(std::int32_t number) const
{
    if (number < 0 || static_cast<std::size_t>(number) >= colours_.size()) return std::nullopt;
    return colours_[static_cast<std::size_t>(number)];
}

bool StyleSheet::OnWord(const Token& word, Group&)
{
    if (word.text != "s") return false;
    current_ = word.number;
    return true;
}

void StyleSheet::OnText(std::string_view text, const Group& group)
{
    const std::size_t end = text.find(';');
    if (name_.size() <= kLongestName) name_ += text.substr(0, std::min(end, kLongestName));
    if (end == std::string_view::npos) return;
    std::int8_t level = LevelOfStyleName(name_);
    if (level == 0 && group.outline >= 0 && group.outline < kHeadingLevels)
        level = static_cast<std::int8_t>(group.outline + 1);
    if (levels_.size() < kMaxEntries) levels_[current_] = level;
    current_ = 0;
    name_.clear();
}

std::int8_t StyleSheet::HeadingLevel(const Group& group) const
{
    if (group.outline >= kHeadingLevels) return 0;
    if (group.outline >= 0) return static_cast<std::int8_t>(group.outline + 1);
    const auto found = levels_.find(group.style);
    return found == levels_.end() ? std::int8_t{0} : found->second;
}

} // namespace selvane::rich_text
