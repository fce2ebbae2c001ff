// A formatted document as plain values, free of any toolkit, for a pane to show.
// Lengths in twips (20 = 1 pt), none beyond kLongestLength either way; font sizes in half-points
// (2 = 1 pt); all text in UTF-8.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace selvane::rich_text {

inline constexpr int kTwipsPerPixel = 15;              // at 96 dots per inch
inline constexpr std::int32_t kLongestLength = 31'680; // twips, 22 inches: the largest page
inline constexpr std::int64_t kMaxPicturePixels = 32'000'000;

struct Colour
{
    std::uint8_t red = 0, green = 0, blue = 0; // each 0 to 255

    bool operator==(const Colour&) const = default;
};

enum class VerticalPosition : std::uint8_t { Baseline, Superscript, Subscript };
enum class ParagraphAlignment : std::uint8_t { Left, Centre, Right, Justified };
enum class TabKind : std::uint8_t { Left, Centre, Right, Decimal };
enum class CellMerge : std::uint8_t { None, First, Continued };
enum class PictureKind : std::uint8_t { Placeholder, Png, Jpeg };

struct CharacterFormat
{
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    bool allCapitals = false;
    bool smallCapitals = false;
    VerticalPosition position = VerticalPosition::Baseline;
    std::int16_t raise = 0; // half-points above the baseline, negative below
    std::int16_t size = 24; // half-points, 2 to 3276
    std::int32_t font = -1; // key of Document::fonts; a font without an entry is the pane's own
    std::optional<Colour> colour;     // none: the pane's own text colour
    std::optional<Colour> background; // none: the pane's own background

    bool operator==(const CharacterFormat&) const = default;
};

// A piece of a paragraph in one format. In text '\t' is a tab, '\n' a line break inside the
// paragraph; no other control character occurs. A run with a picture has no text.
struct Run
{
    std::string text;
    CharacterFormat format;
    std::int32_t link = -1;    // index into Document::links, -1: none
    std::int32_t picture = -1; // index into Document::pictures, -1: none
};

struct TabStop
{
    std::int32_t position = 0; // twips from the left margin
    TabKind kind = TabKind::Left;

    bool operator==(const TabStop&) const = default;
};

struct ParagraphFormat
{
    ParagraphAlignment alignment = ParagraphAlignment::Left;
    std::int32_t leftIndent = 0; // twips, like the four after it
    std::int32_t rightIndent = 0;
    std::int32_t firstLineIndent = 0;
    std::int32_t spaceBefore = 0;
    std::int32_t spaceAfter = 0;
    std::int32_t lineSpacing = 0; // 0: by the font; above: at least; below: exactly so many twips
    bool lineSpacingIsMultiple = false; // the spacing is above 0, in 240ths of a line
    bool pageBreakBefore = false;
    bool rightToLeft = false;
    std::int8_t headingLevel = 0; // 1 to 6; 0: no heading
    std::vector<TabStop> tabStops;

    bool operator==(const ParagraphFormat&) const = default;
};

struct ListItem
{
    int level = 0;     // 0 to 8
    std::string label; // what stands before the text, such as "2." or a bullet; may be empty
};

struct Paragraph
{
    ParagraphFormat format;
    std::optional<ListItem> item;
    std::vector<Run> runs;
};

struct CellFormat
{
    std::int32_t rightEdge = 0; // twips from the left margin; 0: not known
    CellMerge horizontalMerge = CellMerge::None;
    CellMerge verticalMerge = CellMerge::None;
    bool bordered = false;
    std::optional<Colour> background;
};

struct Block;

struct Cell
{
    CellFormat format;
    std::vector<Block> blocks;
};

struct Row
{
    std::vector<Cell> cells;   // 1 to 64
    std::int32_t leftEdge = 0; // twips from the left margin
    bool repeatedHeader = false;
};

// Rows may differ in their number of cells.
struct Table
{
    std::vector<Row> rows;
};

struct Block
{
    std::variant<Paragraph, Table> content;
};

// The bytes are as they stood in the file, not decoded. A placeholder has none.
struct Picture
{
    PictureKind kind = PictureKind::Placeholder;
    std::string bytes;
    std::int32_t widthPixels = 0; // as the data's own header says, at most 8192; 0: unknown
    std::int32_t heightPixels = 0;
    std::int32_t widthTwips = 0; // the size to show it in; 0: unknown
    std::int32_t heightTwips = 0;
};

struct Document
{
    std::vector<Block> blocks;
    std::vector<std::string> links; // targets as the document gives them: "page.html#part"
    std::vector<Picture> pictures;
    std::map<std::int32_t, std::string> fonts; // family names
};

// The text of a paragraph without its label; tabs and line breaks as in Run, pictures left out.
std::string PlainText(const Paragraph& paragraph);

// The text of all blocks in reading order, each paragraph ended by '\n'.
std::string PlainText(const std::vector<Block>& blocks);

// All paragraphs in reading order, those of cells where their table stands.
std::vector<const Paragraph*> Paragraphs(const std::vector<Block>& blocks);

} // namespace selvane::rich_text
