// The rich-text reader: what a document says, how it looks, and what damage does to it. What it
// makes of a small document stands in rich_text/*.txt, beside the document.
#include "markup.h"
#include "rich_text/code_pages.h"
#include "rich_text/html.h"
#include "rich_text/reader.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace selvane::rich_text {
namespace {

// Documents as text: a line for each paragraph, cell, picture and font.

// Names what differs from its default, such as "bold size=20".
class Notes
{
public:
    explicit Notes(const char* first = "") { text << first; }

    template <typename Value> void Add(const char* name, const Value& value, Value usual = {})
    {
        if (value == usual) return;
        text << (text.tellp() > 0 ? " " : "") << name;
        if constexpr (std::is_same_v<Value, std::optional<Colour>>)
            text << int{value->red} << ',' << int{value->green} << ',' << int{value->blue};
        else if constexpr (!std::is_same_v<Value, bool>)
            text << static_cast<int>(value);
    }

    std::ostringstream text;
};

std::string Described(const Run& run)
{
    const CharacterFormat& format = run.format;
    Notes notes;
    notes.Add("bold", format.bold);
    notes.Add("italic", format.italic);
    notes.Add("underline", format.underline);
    notes.Add("strike", format.strike);
    notes.Add("capitals", format.allCapitals);
    notes.Add("small-capitals", format.smallCapitals);
    notes.Add("position=", format.position);
    notes.Add("raise=", format.raise);
    notes.Add("size=", format.size, CharacterFormat().size);
    notes.Add("font=", format.font, -1);
    notes.Add("colour=", format.colour);
    notes.Add("background=", format.background);
    notes.Add("link=", run.link, -1);
    notes.Add("picture=", run.picture, -1);
    std::string text = '<' + notes.text.str() + '>';
    for (const char c : run.text)
        text += c == '\n' ? std::string("⏎") : c == '\t' ? std::string("⇥") : std::string(1, c);
    return text;
}

std::string Described(const Paragraph& paragraph)
{
    const ParagraphFormat& format = paragraph.format;
    Notes notes;
    notes.Add("alignment=", format.alignment);
    notes.Add("left=", format.leftIndent);
    notes.Add("right=", format.rightIndent);
    notes.Add("first=", format.firstLineIndent);
    notes.Add("before=", format.spaceBefore);
    notes.Add("after=", format.spaceAfter);
    notes.Add("spacing=", format.lineSpacing);
    notes.Add("multiple", format.lineSpacingIsMultiple);
    notes.Add("page", format.pageBreakBefore);
    notes.Add("right-to-left", format.rightToLeft);
    notes.Add("heading=", format.headingLevel);
    for (const TabStop& stop : format.tabStops) {
        notes.Add("tab=", stop.position, -1);
        notes.Add("kind=", stop.kind);
    }
    if (paragraph.item) {
        notes.Add("item=", paragraph.item->level, -1);
        notes.text << " '" << paragraph.item->label << '\'';
    }
    std::string text = notes.text.str();
    if (!text.empty()) text = '[' + text + ']';
    for (const Run& run : paragraph.runs) text += Described(run);
    // A run as usual needs no notes where it begins the paragraph.
    return text.starts_with("<>") ? text.substr(2) : text;
}

std::string Described(const std::vector<Block>& blocks)
{
    std::string text;
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block.content)) {
            text += Described(*paragraph) + "|\n";
            continue;
        }
        text += "TABLE\n";
        for (const Row& row : std::get<Table>(block.content).rows) {
            Notes look("ROW");
            look.Add("left=", row.leftEdge);
            look.Add("header", row.repeatedHeader);
            text += look.text.str() + '\n';
            for (const Cell& cell : row.cells) {
                Notes notes("CELL");
                notes.Add("edge=", cell.format.rightEdge);
                notes.Add("across=", cell.format.horizontalMerge);
                notes.Add("down=", cell.format.verticalMerge);
                notes.Add("bordered", cell.format.bordered);
                notes.Add("background=", cell.format.background);
                text += notes.text.str() + '\n' + Described(cell.blocks);
            }
        }
        text += "END\n";
    }
    return text;
}

std::string Described(const ReadResult& result)
{
    if (const auto* error = std::get_if<ReadError>(&result))
        return "REFUSED " + std::to_string(static_cast<int>(*error)) + '\n';
    const auto& document = std::get<Document>(result);
    std::ostringstream text;
    text << Described(document.blocks);
    for (const std::string& link : document.links) text << "LINK " << link << '\n';
    for (const Picture& picture : document.pictures)
        text << "PICTURE " << static_cast<int>(picture.kind) << ' ' << picture.widthPixels << 'x'
             << picture.heightPixels << " pixels, " << picture.widthTwips << 'x'
             << picture.heightTwips << " twips, " << picture.bytes.size() << " bytes\n";
    for (const auto& [number, name] : document.fonts)
        text << "FONT " << number << ' ' << name << '\n';
    return text.str();
}

// The document as a page, without the element around it all. The rule trusts what a document says,
// the worst there can be.
std::string Html(const ReadResult& result)
{
    const std::string html = ToHtml(std::get<Document>(result), [](std::string_view link) {
        const bool isDocument = link.ends_with(".rtf");
        return HtmlLink{isDocument ? HtmlLink::Kind::Document : HtmlLink::Kind::Web,
                        std::string(link)};
    });
    EXPECT_EQ(ReadMarkup(html).fault, "") << html.substr(0, 1000);
    const std::size_t start = html.find('>') + 1;
    return html.substr(start, html.size() - start - std::string_view("</div>").size()) + '\n';
}

// %41 is the byte 41; a line that begins with = is a whole document.
std::string DocumentOf(std::string_view line)
{
    std::string bytes;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool isByte = line[i] == '%';
        bytes += isByte
                     ? static_cast<char>(std::stoi(std::string(line.substr(i + 1, 2)), nullptr, 16))
                     : line[i];
        if (isByte) i += 2;
    }
    return bytes.starts_with('=') ? bytes.substr(1) : "{\\rtf1\\ansi\\deff0 " + bytes + '}';
}

class RichTextSamples : public testing::TestWithParam<const char*>
{};

// A sample is a document, on one line or several, and what the reader makes of it behind ">". What
// a change is meant to change is renewed with SELVANE_RENEW=1.
TEST_P(RichTextSamples, AreReadAsTheyAreMeant)
{
    const std::string path = std::string(SELVANE_TESTS "/rich_text/") + GetParam() + ".txt";
    std::ifstream file(path);
    std::string all, document, head, wanted;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("> ")) {
            wanted += line.substr(2) + '\n';
        } else if (!line.empty()) {
            head += line + '\n';
            if (!line.starts_with("#")) document += line;
        }
        if (!line.empty() && file.peek() != EOF) continue;
        const ReadResult result = Read(DocumentOf(document));
        const std::string given =
            GetParam() == std::string("html") ? Html(result) : Described(result);
        EXPECT_EQ(given, wanted) << head;
        all += head;
        std::istringstream lines(given);
        for (std::string one; std::getline(lines, one);) all += "> " + one + '\n';
        all += '\n';
        document = head = wanted = "";
    }
    EXPECT_FALSE(all.empty()) << path;
    if (std::getenv("SELVANE_RENEW")) std::ofstream(path) << all;
}

INSTANTIATE_TEST_SUITE_P(Files, RichTextSamples,
                         testing::Values("syntax", "characters", "body", "formats", "lists",
                                         "tables", "pictures", "damage", "html"),
                         [](const auto& file) { return std::string(file.param); });

Document ReadWhole(const std::string& bytes)
{
    ReadResult result = Read(bytes);
    if (auto* document = std::get_if<Document>(&result)) return std::move(*document);
    ADD_FAILURE() << "refused: " << bytes.substr(0, 200);
    return {};
}

Document ReadBody(const std::string& body)
{
    return ReadWhole("{\\rtf1\\ansi\\deff0 " + body + "}");
}

std::string TextOf(const std::string& bytes)
{
    return PlainText(ReadWhole(bytes).blocks);
}

std::string Repeat(std::string_view part, std::size_t times)
{
    std::string all;
    all.reserve(part.size() * times);
    while (times-- > 0) all += part;
    return all;
}

// Each byte of each page gives valid text, and plain characters are the same in all.
TEST(RichTextCharacters, NoPageGivesInvalidText)
{
    for (const int page :
         {437,  850,  852,  866,  874,  932,  936,  949,   950,   1250,  1251, 1252,
          1253, 1254, 1255, 1256, 1257, 1258, 1361, 10000, 10006, 10007, 65001}) {
        ASSERT_EQ(KnownPage(page), page);
        std::string text, again;
        ByteDecoder decoder;
        for (int lead = 0x20; lead < 0x100; ++lead) {
            for (int trail = 0x20; trail < 0x100; ++trail) {
                decoder.Feed(static_cast<std::uint8_t>(lead), page, text);
                decoder.Feed(static_cast<std::uint8_t>(trail), page, text);
            }
        }
        for (const char c : text) decoder.Feed(static_cast<std::uint8_t>(c), kUtf8Page, again);
        EXPECT_EQ(again, text) << page;
        decoder.Reset();
        decoder.Feed('~', page, text);
        EXPECT_TRUE(text.ends_with('~')) << page;
    }
}

TEST(RichTextDamage, LongOnesAreReadAsFarAsTheyMayBe)
{
    EXPECT_EQ(TextOf("{\\rtf1 a\\" + Repeat("x", 1'000'000) + " b}"), "ab\n");
    const ReadResult big = Read("{\\rtf1 " + Repeat("{", std::size_t{33} << 20));
    ASSERT_TRUE(std::holds_alternative<ReadError>(big));
    EXPECT_EQ(std::get<ReadError>(big), ReadError::TooBig);
    const std::string png =
        "\\bin29 \x89PNG\r\n\x1A\n" + std::string("\0\0\0\rIHDR\0\0\0\3\0\0\0\1\b\6\0\0\0", 21);
    const std::size_t most = std::size_t{16} << 20;
    for (const std::size_t size : {most, most + 1}) {
        const std::string rest = std::to_string(size - 29);
        const Document document =
            ReadBody("{\\pict" + png + "\\bin" + rest + ' ' + Repeat("x", size - 29) + "}x");
        EXPECT_EQ(document.pictures.at(0).bytes.size(), size > most ? 0 : size);
    }
}

// Groups past the thousandth are only counted, yet close and skip as they should.
TEST(RichTextDamage, AnyDepthOfGroups)
{
    const std::size_t depth = 100'000;
    EXPECT_EQ(TextOf("{\\rtf1 a" + Repeat("{", depth) + "b"), "ab\n");
    const std::string odd = "{\\*\\gone x}{\\info x}{\\pict 00}{\\field{\\fldinst x}{\\fldrslt y}}"
                            "{\\shp{\\shptxt z}}{\\*\\pn\\pnlvlbody q}{\\listtext l}";
    EXPECT_EQ(TextOf("{\\rtf1 a" + Repeat("{\\b ", depth) + odd + Repeat("}", depth) + "c}d"),
              "ayc\n");
    const Document document =
        ReadWhole("{\\rtf1 " + Repeat("{\\b ", depth) + Repeat("}", depth) + "c}");
    EXPECT_FALSE(Paragraphs(document.blocks).at(0)->runs.at(0).format.bold);
}

// Cut anywhere, a document gives an error or a beginning of its text.
TEST(RichTextDamage, TruncatedAtEveryByte)
{
    const std::string whole =
        R"({\rtf1\ansi{\fonttbl{\f0\fcharset0 A;}{\f1\fcharset128 B;}}{\colortbl;\red1;}one \'e9\u960?)"
        R"(\par{\listtext 1.}\ls1 {\f1\'82\'a0}\par\trowd\cellx9 c\cell\row {\field{\*\fldinst HYPERLINK "x"})"
        R"({\fldrslt link}}{\pict\pngblip 8950}{\v no}end{\shp{\*\shpinst{\shptxt box\par}}}\par})";
    const std::string text = TextOf(whole);
    EXPECT_EQ(text, "one éπ\nあ\nc\nlinkend\nbox\n");
    std::size_t longest = 0;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        const ReadResult result = Read(cut);
        const auto* document = std::get_if<Document>(&result);
        if (!document || cut.ends_with("\\u9") || cut.ends_with("\\u96")) continue;
        std::string beginning = PlainText(document->blocks);
        while (beginning.ends_with('\n')) beginning.pop_back();
        EXPECT_TRUE(text.starts_with(beginning)) << cut;
        longest = std::max(longest, beginning.size());
    }
    EXPECT_EQ(longest + 1, text.size());
}

TEST(RichTextLimits, ReadingStopsAndKeepsWhatItHas)
{
    EXPECT_EQ(Paragraphs(ReadBody(Repeat("a\\par ", 300'000)).blocks).size(), 200'000u);
    EXPECT_EQ(PlainText(ReadBody(Repeat("é", 9 << 20) + Repeat("\\'e9", 3 << 20)).blocks).size(),
              (std::size_t{16} << 20) + 1);
    const Document many = ReadBody(Repeat("\\b a\\b0 c", 1'000'000) + "{\\pict\\picwgoal9}");
    EXPECT_EQ(Paragraphs(many.blocks).at(0)->runs.size(), 1'000'000u);
    EXPECT_EQ(PlainText(many.blocks).size(), 2'000'001u);
    const Document pictures = ReadBody(Repeat("{\\pict\\picwgoal9}", 65'600));
    EXPECT_EQ(pictures.pictures.size(), 65'536u);
    std::string fonts = "{\\fonttbl";
    for (int i = 0; i < 70'000; ++i) fonts += "{\\f" + std::to_string(i) + " A;}";
    EXPECT_EQ(ReadBody(fonts + "}x").fonts.size(), 65'536u);
    const Document wide =
        ReadBody("\\trowd " + Repeat("\\cellx9", 99) + Repeat("a\\cell ", 99) + "\\row");
    const std::vector<Cell>& cells = std::get<Table>(wide.blocks.at(0).content).rows.at(0).cells;
    EXPECT_EQ(cells.size(), 64u);
    EXPECT_EQ(cells.back().blocks.size(), 36u);
    const Document tabs = ReadBody(Repeat("\\tx9", 99) + "a\\par");
    EXPECT_EQ(Paragraphs(tabs.blocks).at(0)->format.tabStops.size(), 32u);
}

// The least of some readings: the processor's time, but another program may have its caches.
double SecondsToRead(const std::string& bytes, int readings)
{
    double least = 1e9;
    for (int reading = 0; reading < readings; ++reading) {
        const std::clock_t start = std::clock();
        ReadWhole(bytes);
        least = std::min(least, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

// Eight times the size takes about eight times as long; quadratic time would be 64 times.
TEST(RichTextLimits, TimeGrowsWithTheSize)
{
    for (const char* part :
         {"{\\b orbit} \\i and\\i0  \\u960?\\'e9\\par\n", "\\trowd\\cellx9 a\\cell\\row ",
          "{{{}}}{a}", "{\\listtext 1.}\\ls1 a\\par", "\\tx1\\tx2{\\pard a}", "{\\pict 00}a",
          "{\\shp{\\shpinst{\\shptxt a}}}b", "{\\field{\\fldinst HYPERLINK a}{\\fldrslt b}}",
          "{\\*\\pn\\pnlvlbody}a\\par\\pard", "{\\fonttbl{\\f1 A;}}{\\colortbl\\red1;}\\cf9 a"}) {
        const std::size_t times = (std::size_t{1} << 16) / std::string_view(part).size();
        const double small = SecondsToRead("{\\rtf1 " + Repeat(part, times) + "}", 5);
        const double large = SecondsToRead("{\\rtf1 " + Repeat(part, 8 * times) + "}", 2);
        EXPECT_LT(large, 20 * small) << part;
    }
}

} // namespace
} // namespace selvane::rich_text
