// The tables at the head of a document: fonts, colours, and the styles that are headings.
#pragma once

#include "rich_text/destination.h"
#include "rich_text/text_decoder.h"

#include <map>
#include <optional>
#include <unordered_map>
#include <vector>

namespace selvane::rich_text {

// \fonttbl, and what the document says of the bytes of text that no font of the table is for.
class FontTable : public Destination
{
public:
    FontTable() : Destination(Takes::Text) {}
    Destination* OnWord(const Token& word) override;
    void OnText(std::string_view text, const Group& group) override; // a semicolon ends a name

    // What bytes in the font of a number mean; below 0: in the document's own font.
    Encoding EncodingOf(std::int32_t number) const;
    Encoding EncodingOfNames() const { return {Glyphs::Text, PageOf(current_)}; }

    std::map<std::int32_t, std::string> Names() const;

    std::int32_t defaultFont = 0;
    std::int32_t characterSetPage = kWesternPage;
    std::int32_t codePage = 0; // 0: that of the character set

private:
    struct Font
    {
        std::int32_t page = 0;      // 0: that of the character set
        std::int32_t pageOfSet = 0; // 0: that of the document
        bool isOfSymbols = false;   // as its character set says
        Glyphs glyphs = Glyphs::Text;
        bool named = false;
        std::string name;
    };
    std::int32_t PageOf(const Font* font) const;

    std::unordered_map<std::int32_t, Font> fonts_;
    Font* current_ = nullptr; // the one that is being defined
};

// \colortbl.
class ColourTable : public Destination
{
public:
    ColourTable() : Destination(Takes::Bytes) {}
    Destination* OnWord(const Token& word) override;
    void OnText(std::string_view text, const Group& group) override; // a semicolon ends an entry
    void OnEnd(const Group& group) override;                         // the last may have none

    // None: automatic, as are numbers without an entry.
    std::optional<Colour> Find(std::int32_t number) const;

private:
    std::vector<std::optional<Colour>> colours_;
    std::optional<Colour> next_;
};

// \stylesheet.
class StyleSheet : public Destination
{
public:
    StyleSheet() : Destination(Takes::Text) {}
    Destination* OnWord(const Token& word) override;
    void OnText(std::string_view text, const Group& group) override; // a semicolon ends a name

    // Of a paragraph by its outline, or else by its style: 1 to 6; 0: no heading.
    std::int8_t HeadingLevel(const ParagraphState& paragraph) const;

private:
    std::unordered_map<std::int32_t, std::int8_t> levels_;
    std::string name_;
    std::int32_t current_ = 0;
};

} // namespace selvane::rich_text
