#include "rich_text/header_tables.h"

#include "rich_text/ascii.h"
#include "rich_text/code_pages.h"

#include <algorithm>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxEntries = 65'536; // of each table; more are ignored
constexpr std::size_t kLongestName = 128;   // bytes; what follows is dropped

// 1 to 6; 0: none of a heading.
std::int8_t LevelOfOutline(std::int32_t outline)
{
    return static_cast<std::int8_t>(outline >= 0 && outline < 6 ? outline + 1 : 0);
}

std::int8_t LevelOfStyleName(std::string_view styleName)
{
    const std::string name = Capitals(Trimmed(styleName, " "));
    const bool isHeading = name.size() == 9 && name.starts_with("HEADING ");
    return isHeading ? LevelOfOutline(name[8] - '1') : std::int8_t{0};
}

} // namespace

Glyphs GlyphsOfFontName(std::string_view name)
{
    const std::string font = Capitals(Trimmed(name, " "));
    for (const char* ornaments : {"WINGDINGS", "WEBDINGS", "DINGBATS", "MONOTYPE SORTS", "MARLETT"})
        if (font.find(ornaments) != std::string::npos) return Glyphs::Ornaments;
    return font == "SYMBOL" ? Glyphs::Symbol : Glyphs::Text;
}

Destination* FontTable::OnWord(const Token& word)
{
    if (word.text == "f") {
        if (fonts_.size() < kMaxEntries) fonts_[word.number] = {};
        const auto found = fonts_.find(word.number);
        current_ = found == fonts_.end() ? nullptr : &found->second;
    } else if (word.text == "fcharset") {
        if (!current_) return this;
        current_->pageOfSet = PageOfCharacterSet(word.number);
        current_->isOfSymbols = word.number == kSymbolCharacterSet;
    } else if (word.text == "cpg") {
        if (current_) current_->page = KnownPage(word.number);
    } else {
        return nullptr;
    }
    return this;
}

void FontTable::OnText(std::string_view text, const Group&)
{
    if (!current_ || current_->named) return;
    std::string& name = current_->name;
    const std::size_t end = text.find(';');
    current_->named = end != std::string_view::npos;
    if (name.size() + text.substr(0, end).size() <= kLongestName) name += text.substr(0, end);
    current_->glyphs = GlyphsOfFontName(name);
}

std::int32_t FontTable::PageOf(const Font* font) const
{
    if (font && font->page != 0) return font->page;
    if (font && font->pageOfSet != 0) return font->pageOfSet;
    return codePage != 0 ? codePage : characterSetPage;
}

Encoding FontTable::EncodingOf(std::int32_t number) const
{
    const auto found = fonts_.find(number < 0 ? defaultFont : number);
    if (found == fonts_.end()) return {Glyphs::Text, PageOf(nullptr)};
    const Font& font = found->second;
    const bool isSymbol = font.isOfSymbols && font.glyphs == Glyphs::Text;
    return {isSymbol ? Glyphs::Symbol : font.glyphs, PageOf(&font)};
}

std::map<std::int32_t, std::string> FontTable::Names() const
{
    std::map<std::int32_t, std::string> names;
    for (const auto& [number, font] : fonts_) names[number] = Trimmed(font.name, " ");
    return names;
}

Destination* ColourTable::OnWord(const Token& word)
{
    constexpr std::pair<std::string_view, std::uint8_t Colour::*> kChannels[] = {
        {"red", &Colour::red}, {"green", &Colour::green}, {"blue", &Colour::blue}};
    for (const auto& [name, channel] : kChannels) {
        if (word.text != name) continue;
        if (!next_) next_.emplace();
        (*next_).*channel = static_cast<std::uint8_t>(std::clamp(word.number, 0, 255));
        return this;
    }
    return nullptr;
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

Destination* StyleSheet::OnWord(const Token& word)
{
    if (word.text != "s") return nullptr;
    current_ = word.number;
    return this;
}

void StyleSheet::OnText(std::string_view text, const Group& group)
{
    const std::size_t end = text.find(';');
    if (name_.size() <= kLongestName) name_ += text.substr(0, std::min(end, kLongestName));
    if (end == std::string_view::npos) return;
    const std::int8_t named = LevelOfStyleName(name_);
    if (levels_.size() < kMaxEntries)
        levels_[current_] = named > 0 ? named : LevelOfOutline(group.paragraph.outline);
    current_ = 0;
    name_.clear();
}

std::int8_t StyleSheet::HeadingLevel(const ParagraphState& paragraph) const
{
    if (paragraph.outline >= 0) return LevelOfOutline(paragraph.outline);
    const auto found = levels_.find(paragraph.style);
    return found == levels_.end() ? std::int8_t{0} : found->second;
}

} // namespace selvane::rich_text
