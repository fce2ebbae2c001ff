// The tables at the head of a document: fonts, colours, and the styles that are headings.
#pragma once

#include "app/colour.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace selvane::rich_text {

inline constexpr std::size_t kMaxHeaderEntries = 65'536; // of each table; more are ignored

// What the bytes of a font draw: characters of a code page, those of the Symbol encoding, or
// ornaments, which all count as bullets.
enum class FontGlyphs : std::uint8_t { Text, Symbol, Ornaments };

FontGlyphs GlyphsOfFontName(std::string_view name);

class FontTable
{
public:
    void Start(std::int32_t number);
    void SetCharacterSet(std::int32_t characterSet);
    void SetPage(std::int32_t page);     // ignored if unknown
    void AddName(std::string_view text); // a semicolon ends it

    // 0: that of the document.
    std::int32_t Page(std::int32_t font) const;
    std::int32_t CurrentPage() const { return Page(current_); }
    FontGlyphs Glyphs(std::int32_t font) const;
    std::map<std::int32_t, std::string> Names() const;

private:
    struct Entry
    {
        std::int32_t characterSet = 1;
        std::int32_t page = 0;
        FontGlyphs glyphs = FontGlyphs::Text;
        bool named = false;
        std::string name;
    };
    Entry* Current();

    std::unordered_map<std::int32_t, Entry> fonts_;
    std::int32_t current_ = -1;
};

class ColourTable
{
public:
    enum class Channel { Red, Green, Blue };
    void SetChannel(Channel channel, std::int32_t value); // clamped to 0..255
    void AddText(std::string_view text);                  // each semicolon ends an entry
    void Close();                                         // ends an entry without one

    // None: automatic, as are numbers without an entry.
    std::optional<Colour> Find(std::int32_t number) const;

private:
    std::vector<std::optional<Colour>> colours_;
    std::optional<Colour> next_;
};

class HeadingStyles
{
public:
    void Start(std::int32_t style) { current_ = style; }

    // Outline is that of the style, -1 if none is set; a semicolon ends the name.
    void AddName(std::string_view text, std::int32_t outline);

    std::int8_t Level(std::int32_t style) const; // 1 to 6; 0: no heading

private:
    std::unordered_map<std::int32_t, std::int8_t> levels_;
    std::string name_;
    std::int32_t current_ = 0;
};

} // namespace selvane::rich_text
