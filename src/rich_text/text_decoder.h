// Turns the bytes and the numbered characters of a document into text.
#pragma once

#include "rich_text/code_pages.h"

#include <string>
#include <string_view>

namespace selvane::rich_text {

// What the bytes of a font draw: characters of a code page, those of the Symbol encoding, or
// ornaments, which all count as bullets.
enum class Glyphs : std::uint8_t { Text, Symbol, Ornaments };

Glyphs GlyphsOfFontName(std::string_view name);

struct Encoding
{
    Glyphs glyphs = Glyphs::Text;
    std::int32_t page = kWesternPage;
    bool isLabelTemplate = false; // bytes below 20 stand for numbers, glyphs for bullets
};

// What it gives stays valid until the next call.
class TextDecoder
{
public:
    std::string_view Bytes(std::string_view bytes, const Encoding& encoding);

    // The number of \u: a signed 16-bit unit of UTF-16, or a code point.
    std::string_view Unicode(std::int32_t number, const Encoding& encoding);

    std::string_view CodePoint(char32_t character, const Encoding& encoding);
    std::string_view Character(char32_t character);

    // Drops half a character.
    void Reset();

private:
    void Byte(std::uint8_t byte, const Encoding& encoding);

    ByteDecoder decoder_;
    char32_t highSurrogate_ = 0;
    std::string text_;
};

} // namespace selvane::rich_text
