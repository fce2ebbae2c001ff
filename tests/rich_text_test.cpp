// The rich-text reader: what a document says, how it looks, and what damage does to it.
#include "rich_text/code_pages.h"
#include "rich_text/reader.h"

#include <algorithm>
#include <ctime>
#include <gtest/gtest.h>

namespace selvane::rich_text {
namespace {

Document ReadWhole(const std::string& bytes)
{
    ReadResult result = rich_text::Read(bytes);
    if (auto* document = std::get_if<Document>(&result)) return std::move(*document);
    ADD_FAILURE() << "refused: " << bytes.substr(0, 200);
    return {};
}

Document ReadBody(const std::string& body)
{
    return ReadWhole("{\\rtf1\\ansi\\deff0 " + body + "}");
}

// Paragraphs joined by a bar, without the last bar.
std::string Text(const std::string& body)
{
    std::string text = PlainText(ReadBody(body).blocks);
    if (!text.empty()) text.pop_back();
    for (char& c : text)
        if (c == '\n') c = '|';
    return text;
}

std::optional<ReadError> Refusal(const std::string& bytes)
{
    const ReadResult result = Read(bytes);
    const auto* error = std::get_if<ReadError>(&result);
    return error ? std::optional(*error) : std::nullopt;
}

struct Case
{
    const char* body;
    const char* text;
};

template <std::size_t N> void ExpectTexts(const Case (&cases)[N])
{
    for (const Case& c : cases) EXPECT_EQ(Text(c.body), c.text) << c.body;
}

std::string Repeat(std::string_view part, std::size_t times)
{
    if (part.size() == 1) return std::string(times, part[0]);
    std::string all;
    all.reserve(part.size() * times);
    while (times-- > 0) all += part;
    return all;
}

const Paragraph& ParagraphAt(const Document& document, std::size_t index)
{
    return *Paragraphs(document.blocks).at(index);
}

const Table& TableAt(const std::vector<Block>& blocks, std::size_t index)
{
    return std::get<Table>(blocks.at(index).content);
}

TEST(RichTextSyntax, WordsSymbolsAndTheirDelimiters)
{
    ExpectTexts({
        {R"(a\b b\b0 c)", "abc"},
        {R"(a\unknown b\unknown-12c\unknown- d)", "abc- d"},
        {R"(\i1x\i0-y \b  z)", "x-y  z"},
        {"a\nb\r\nc", "abc"},
        {"a\\\nb\\\r\nc\\\rd", "a|b|c|d"},
        {"a\tb\\tab c\\line d", "a\tb\tc|d"},
        {R"(\{\}\\ \~\_\-)", "{}\\ \u00A0\u2011\u00AD"},
        {R"(\emdash\endash\lquote\rquote\ldblquote\rdblquote\bullet x)", "—–‘’“”•x"},
        {R"(\emspace\enspace\qmspace\zwj\zwnj\ltrmark\rtlmark x)",
         "\u2003\u2002\u2005\u200D\u200C\u200E\u200Fx"},
        {R"(a{\*\unknown b{c}d}e{\unknown f}g\*\b h)", "aefgh"},
        {R"(x{\*{\unknown a}b}y)", "xaby"},
        {R"(a\bin3 }}}b{\*\gone\bin2 {{}c\bin-5 d)", "abcd"},
    });
    EXPECT_EQ(Text(std::string("a\0b\\'00c\\u0 ?d", 14)), "abcd");
}

TEST(RichTextCharacters, CodePagesOfDocumentAndFont)
{
    const struct
    {
        const char* header;
        const char* bytes;
        const char* text;
    } cases[] = {
        {R"(\ansi)", R"(\'80\'E9\'e9)", "€éé"},
        {R"(\mac)", R"(\'8e\'a5)", "é•"},
        {R"(\pc)", R"(\'82\'e1)", "éß"},
        {R"(\pca)", R"(\'82\'d0)", "éð"},
        {R"(\ansi\ansicpg1251)", R"(\'cf\'f0)", "Пр"},
        {R"(\ansi\ansicpg10007)", R"(\'8f\'df)", "Пя"},
        {R"(\ansi\ansicpg874)", R"(\'a1)", "ก"},
        {R"(\ansi\ansicpg777)", R"(\'e9)", "é"},
        {R"(\ansi\ansicpg65001)", "\\'ce\\'b1\xCE\xB2\\'f0\\'9f\\'98\\'80", "αβ😀"},
        {R"(\ansi\ansicpg65001)", R"(a\'ce\'ed\'a0\'80\'c0\'80b)", "ab"},
        {R"(\ansi\ansicpg932)", R"(\'82\'a0\'83A\'95\'5c\'95\\\'b1)", "あア表表ｱ"},
        {R"(\ansi\ansicpg936)", R"(\'c4\'e3\'80)", "你€"},
        {R"(\ansi\ansicpg949)", R"(\'b0\'a1)", "가"},
        {R"(\ansi\ansicpg950)", R"(\'a7\'41)", "你"},
        {R"(\ansi\ansicpg1361)", R"(\'88\'61)", "가"},
        {R"(\ansi\ansicpg932)", R"(\'82 x\'82}{y\'ff)", " xy"},
        {R"(\ansi\ansicpg932)", R"(\'82{\'b1})", "ｱ"},
    };
    for (const auto& c : cases) {
        const std::string whole = std::string("{\\rtf1") + c.header + "{" + c.bytes + "}}";
        EXPECT_EQ(PlainText(ReadWhole(whole).blocks), std::string(c.text) + '\n') << whole;
    }

    const std::string fonts = R"({\rtf1\ansi\ansicpg1250\deff4{\fonttbl{\f1\fcharset204 A;})"
                              R"({\f2\fcharset1 B;}{\f3\fcharset128 C;}{\f4\fcharset161 D;})"
                              R"({\f5\fcharset0\cpg1251 E;}})";
    EXPECT_EQ(PlainText(ReadWhole(fonts + R"(\'e1{\f1\'cf}{\f2\'cc}{\f3\'82\'a0}\f5\'cf)"
                                          R"(\plain\'e1\af1\loch\hich\'e1\f99\'cc})")
                            .blocks),
              "αПĚあПααĚ\n");
    const std::string flat = R"({\rtf1{\fonttbl\f0\fcharset0 A;\f1\fcharset238 B;}\f1\'b3})";
    EXPECT_EQ(PlainText(ReadWhole(flat).blocks), "ł\n");
    EXPECT_EQ(ReadWhole(flat).fonts, (std::map<std::int32_t, std::string>{{0, "A"}, {1, "B"}}));
}

TEST(RichTextCharacters, CharacterSetsOfFonts)
{
    const struct
    {
        int characterSet;
        const char* bytes;
        const char* text;
    } cases[] = {
        // clang-format off
        {0, R"(\'e9)", "é"}, {77, R"(\'8e)", "é"}, {78, R"(\'82\'a0)", "あ"},
        {79, R"(\'b0\'a1)", "가"}, {80, R"(\'c4\'e3)", "你"}, {81, R"(\'a7\'41)", "你"},
        {85, R"(\'e1)", "α"}, {86, R"(\'dd)", "ı"}, {87, R"(\'a1)", "ก"}, {88, R"(\'88)", "ą"},
        {89, R"(\'8f)", "П"}, {128, R"(\'82\'a2)", "い"}, {129, R"(\'b3\'aa)", "나"},
        {130, R"(\'88\'61)", "가"}, {134, R"(\'ba\'c3)", "好"}, {136, R"(\'a6\'6e)", "好"},
        {161, R"(\'e1)", "α"}, {162, R"(\'fe)", "ş"}, {163, R"(\'f0)", "đ"},
        {177, R"(\'e0)", "א"}, {178, R"(\'c8)", "ب"}, {186, R"(\'e0)", "ą"},
        {204, R"(\'cf)", "П"}, {222, R"(\'a2)", "ข"}, {238, R"(\'b3)", "ł"},
        {254, R"(\'82)", "é"}, {255, R"(\'d0)", "ð"}
        // clang-format on
    };
    std::string fonts = "{\\rtf1\\ansi\\ansicpg1250{\\fonttbl", body, text;
    for (const auto& c : cases) {
        const std::string number = std::to_string(c.characterSet);
        fonts += "{\\f" + number + "\\fcharset" + number + " A;}";
        body += "{\\f" + number + c.bytes + "}";
        text += c.text;
    }
    EXPECT_EQ(PlainText(ReadWhole(fonts + '}' + body + '}').blocks), text + '\n');
}

// Each byte of each page gives valid text, and plain characters are the same in all.
TEST(RichTextCharacters, NoPageGivesInvalidText)
{
    for (const int page :
         {437,  850,  852,  866,  874,  932,  936,  949,   950,   1250,  1251, 1252,
          1253, 1254, 1255, 1256, 1257, 1258, 1361, 10000, 10006, 10007, 65001}) {
        ASSERT_EQ(KnownPage(page), page);
        std::string text;
        ByteDecoder decoder;
        for (int lead = 0x20; lead < 0x100; ++lead) {
            for (int trail = 0x20; trail < 0x100; ++trail) {
                decoder.Feed(static_cast<std::uint8_t>(lead), page, text);
                decoder.Feed(static_cast<std::uint8_t>(trail), page, text);
            }
        }
        std::string again;
        for (const char c : text) decoder.Feed(static_cast<std::uint8_t>(c), kUtf8Page, again);
        EXPECT_EQ(again, text) << page;
        text.clear();
        decoder.Reset();
        decoder.Feed('~', page, text);
        EXPECT_EQ(text, "~") << page;
    }
}

TEST(RichTextCharacters, UnicodeAndWhatItReplaces)
{
    ExpectTexts({
        {R"(\u960?x)", "πx"},
        {R"(\u-3?\u65533?\u8364 ?)", "\uFFFD\uFFFD€"},
        {R"(\u128512?x)", "😀x"},
        {R"(\u-10179?\u-8704?x)", "😀x"},
        {R"(\u55357?y\u-8704?x\u-10179?)", "yx"},
        {R"({\u-10179?}{\u-8704?x})", "x"},
        {R"(\u99999999999?\u-40000?\u1114112?x)", "x"},
        {R"(\uc0\u960?x)", "π?x"},
        {R"(\uc2\u960\'82\'a0x\u960 abx)", "πxπx"},
        {R"(\uc3\u960 a\par\'41x)", "πx"},
        {R"(\uc1\u960\bin2 {{x)", "πx"},
        {R"({\uc9\u960 ab}c)", "πc"},
        {R"({\uc0\u960?}\u960?x)", "π?πx"},
        {R"({\uc-7\u960?\uc99999\u960 gone}x)", "π?πx"},
        {R"({\upr{ascii}{\*\ud\uc0\u945\u946}}c)", "αβc"},
        {R"(\u-3913?\u9?\u8232?\u8233?\u7?x)", "\uF0B7\t||x"},
    });
}

TEST(RichTextCharacters, SymbolFontsShowWhatTheyDraw)
{
    const std::string fonts = R"({\fonttbl{\f1\fcharset2 Symbol;}{\f2\fcharset2 Wingdings;}})";
    const Case cases[] = {
        {R"({\f1 aW\'b0\'d6\'20-}a)", "αΩ°√ −a"},
        {R"({\f1\u-3999?\u61620?\u960?})", "α×π"},
        {R"({\f2\'a7 x\u-3929?})", "• ••"},
        {R"({\field{\*\fldinst SYMBOL 97 \\f "Symbol" \\s 10}{\fldrslt{\f1}}})", "α"},
        {R"({\field{\*\fldinst SYMBOL 61655 \\f Symbol}{\fldrslt shown}})", "shown"},
        {R"({\field{\*\fldinst PAGE 97}{\fldrslt 3}})", "3"},
        {R"({\field{\*\fldinst symbol 0xE9}}{\field{\*\fldinst SYMBOL 8364 \\u}})", "é€"},
    };
    for (const Case& c : cases) EXPECT_EQ(Text(fonts + c.body), c.text) << c.body;
}

TEST(RichTextBody, ShowsNothingButTheBody)
{
    ExpectTexts({
        {R"({\info{\title a}}{\header b\par}{\footerf c\par}x{\footnote d\par}y)", "xy"},
        {R"(x{\*\atnid a}{\annotation b}{\xe c}{\tc d}{\*\bkmkstart e}{\bkmkend e}y)", "xy"},
        {R"(x{\listtext 1.\tab}{\pntext 2.}{\nonshppict{\pict 00}}{\nonesttables z\par}y)", "xy"},
        {R"(x{\v hidden{\v0 shown}}y\v z\plain w\v a\v0 b)", "xshownywb"},
        {R"(x{\deleted gone}{\revised kept}y)", "xkepty"},
        {R"({\object{\*\objdata 00}junk{\result r}}{\shp{\*\shpinst{\sp{\sn n}{\sv v}}}})", "r"},
        {R"(\title x)", "x"},
    });
    EXPECT_EQ(Text(R"({\shp{\*\shpinst\shpleft1{\shptxt box\par two}}{\shprslt box}}anchor\par z)"),
              "anchor|box|two|z");
    EXPECT_EQ(Text(R"(\pard\intbl a{\*\do\dptxbx{\dptxbxtext\pard in}}b\cell\row)"), "ab|in");
}

TEST(RichTextBody, FieldsShowTheirResultAndCarryLinks)
{
    const Document document = ReadBody(
        R"({\field{\*\fldinst{HYPERLINK "a.rtf" \\l "p"}}{\fldrslt{\b one}\par two}} no )"
        R"({\field{\fldinst hyperlink b.rtf \\o "tip"}{\*\fldrslt x{\field{\*\fldinst PAGEREF q}{\fldrslt 7}}}})"
        R"({\field{\*\fldinst HYPERLINK \\l "p"}{\fldrslt z}}{\field{\*\fldinst TIME}{\fldrslt noon}})"
        R"({\field{\*\fldinst HYPERLINK "c:\\\\d"}{\fldrslt w}}{\field{\*\fldinst HYPERLINK {\field{\*\fldinst Q}{\fldrslt n}}}{\fldrslt v}})");
    std::string seen;
    for (const Paragraph* paragraph : Paragraphs(document.blocks))
        for (const auto& run : paragraph->runs)
            seen += run.text + '<' +
                    (run.link < 0 ? "" : document.links.at(static_cast<std::size_t>(run.link))) +
                    '>';
    EXPECT_EQ(seen, "one<a.rtf#p>two<a.rtf#p> no <>x7<b.rtf>z<#p>noon<>w<c:\\d>v<n>");
}

TEST(RichTextBody, EndsOfParagraphs)
{
    ExpectTexts({
        {R"(a\par b\sect c\page d\column e)", "a|b|c|d|e"},
        {R"(\page a\sect\page b\par\page)", "a|b"},
        {R"(a\par\par b)", "a||b"},
        {R"(a\cell b\row c)", "a|b|c"},
    });
}

TEST(RichTextFormat, CharactersFollowTheirGroups)
{
    const Document document = ReadBody(
        R"({\colortbl;\red255\green128\blue300;;\red1;}\fs20 a{\b\i b\b0 c}d\ul\strike e\ulnone )"
        R"(\striked0 f\super g\nosupersub\sub h\sub0\up4 i\dn j\up0\cf1\highlight3 k\cf2\cb9 l)"
        R"(\fs99999 m\fs0\caps\scaps n\plain o)");
    const auto& runs = ParagraphAt(document, 0).runs;
    std::string seen;
    for (const auto& run : runs) {
        const CharacterFormat& f = run.format;
        seen += run.text + (f.bold ? "B" : "") + (f.italic ? "I" : "") + (f.underline ? "U" : "") +
                (f.strike ? "S" : "") + (f.allCapitals ? "C" : "") + (f.smallCapitals ? "c" : "");
        if (f.position != VerticalPosition::Baseline)
            seen += f.position == VerticalPosition::Superscript ? '^' : '_';
        if (f.raise != 0) seen += std::to_string(f.raise);
        if (f.colour) seen += '#' + std::to_string(f.colour->green);
        if (f.background) seen += '@' + std::to_string(f.background->red);
        seen += ' ' + std::to_string(f.size) + '|';
    }
    EXPECT_EQ(seen, "a 20|bBI 20|cI 20|d 20|eUS 20|f 20|g^ 20|h_ 20|i4 20|j-6 20|k#128@1 20|l 20|"
                    "m 3276|nCc 24|o 24|");
    EXPECT_EQ(runs.at(10).format.colour, (Colour{255, 128, 255}));
}

TEST(RichTextFormat, ParagraphsTakeWhatHoldsAtTheirEnd)
{
    const Document document = ReadBody(
        R"({\stylesheet{\s0 Normal;}{\s3 Heading 2;}{\s4\outlinelevel0 Titre;}{\s5 heading 7;}})"
        R"(\qc a\qr\li720\ri1\fi-360\sb10\sa20\sl360\slmult1\pagebb\rtlpar\tqr\tx900\tx99999\par)"
        R"(\pard b{\qj\par}c\par\s3 d\par\pard\s4 e\par\pard\s5 f\par\outlinelevel5 g\par)"
        R"(\s3\outlinelevel9 h\par)");
    const ParagraphFormat& first = ParagraphAt(document, 0).format;
    ParagraphFormat wanted;
    wanted.alignment = ParagraphAlignment::Right;
    wanted.leftIndent = 720;
    wanted.rightIndent = 1;
    wanted.firstLineIndent = -360;
    wanted.spaceBefore = 10;
    wanted.spaceAfter = 20;
    wanted.lineSpacing = 360;
    wanted.lineSpacingIsMultiple = wanted.pageBreakBefore = wanted.rightToLeft = true;
    wanted.tabStops = {{900, TabKind::Right}, {31680, TabKind::Left}};
    EXPECT_EQ(first, wanted);
    EXPECT_EQ(ParagraphAt(document, 1).format.alignment, ParagraphAlignment::Justified);
    EXPECT_EQ(ParagraphAt(document, 2).format, ParagraphFormat{});
    std::string spacings; // at least, exactly, and multiples of a line, which have no sign
    const Document spaced =
        ReadBody("\\sl360 a\\par\\sl-240 b\\par\\slmult1 c\\par\\sl-99999\\slmult0 d\\par");
    for (const Paragraph* paragraph : Paragraphs(spaced.blocks))
        spacings += std::to_string(paragraph->format.lineSpacing) + ' ';
    EXPECT_EQ(spacings, "360 -240 240 -31680 ");
    std::string levels;
    for (std::size_t i = 3; i < 8; ++i)
        levels += std::to_string(ParagraphAt(document, i).format.headingLevel);
    EXPECT_EQ(levels, "21060");
    EXPECT_EQ(ParagraphAt(ReadBody(Repeat("\\tx9", 99) + "a\\par"), 0).format.tabStops.size(), 32u);
}

std::string Labels(const Document& document)
{
    std::string labels;
    for (const Paragraph* paragraph : Paragraphs(document.blocks))
        labels += !paragraph->item
                      ? std::string("-|")
                      : std::to_string(paragraph->item->level) + ' ' + paragraph->item->label + '|';
    return labels;
}

TEST(RichTextLists, StoredLabelsWinOverWorkedOutOnes)
{
    const std::string table =
        R"({\*\listtable{\list{\listlevel\levelnfc0\levelstartat3{\leveltext\'02\'00.;}{\levelnumbers\'01;}})"
        R"({\listlevel\levelnfc4\levelstartat1{\leveltext\'04\'00.\'01);}}{\listlevel\levelnfc2{\leveltext\'01\'02;}})"
        R"({\listlevel\levelnfc23{\leveltext\'01\u-3913 ?;}}{\listlevel\levelnfc255{\leveltext\'00;}}\listid5}{\list{\listlevel\levelnfc0\levelstartat0{\leveltext\'01\'00;}}\listid6}})"
        R"({\*\listoverridetable{\listoverride\listid5\ls1}{\listoverride\listid5{\lfolevel\listoverridestartat\levelstartat7}\ls2}{\listoverride\listid5\ls3}{\listoverride\listid6\ls4}})";
    EXPECT_EQ(
        Labels(ReadBody(table + R"(\ls1 a\par b\par\ilvl1 c\par d\par\ilvl2 e\par\ilvl3 f\par)"
                                R"(\ilvl0{\listtext\f0 9)\tab}g\par h\par\ilvl1 i\par\ilvl4 j\par)"
                                R"(\pard k\par\ls9 l\par\pard\ls2\ilvl44 m\par\ilvl0 n\par)")),
        "0 3.|0 4.|1 4.a)|1 4.b)|2 i|3 •|0 9)|0 6.|1 6.a)|-|-|-|-|0 11.|");
    EXPECT_EQ(Labels(ReadBody(table + R"(\ls3\ilvl1 a\par\pard\ls3 b\par\pard\ls4 c\par)")),
              "1 3.a)|0 3.|0 0|");
}

TEST(RichTextLists, OldListsStandWithTheirParagraphs)
{
    EXPECT_EQ(Labels(ReadBody(
                  R"({\pntext\bullet\tab}{\*\pn\pnlvlblt{\pntxtb\bullet}}a\par b\par\pard c\par)"
                  R"({\*\pn\pnlvlbody\pnucrm\pnstart4{\pntxtb (}{\pntxta )}}d\par e\par)"
                  R"(\pard{\*\pn\pnlvl3\pnlcltr{\pntxta .}}f\par{\*\pn\pnlvlcont}g\par)"
                  R"(\pard{\*\pn\pnlvlbody\pndec\pnstart0{\pntxta .}}h\par)")),
              "0 •|0 •|-|0 (IV)|0 (V)|2 a.|-|0 0.|");
}

TEST(RichTextTables, RowsCellsAndTheirLook)
{
    const Document document = ReadBody(
        R"({\colortbl;\red9\green9\blue9;}\trowd\trhdr\trleft-50\clbrdrt\brdrs\clvmgf\cellx1000)"
        R"(\clcbpat1\clmgf\cellx2000\clbrdrb\brdrnone\clmrg\clvmrg\cellx3000\pard\intbl a\par b\cell )"
        R"(\cell c\cell\row\trowd\trbrdrh\brdrdot\cellx500\pard d\cell\row\pard after)");
    ASSERT_EQ(document.blocks.size(), 2u);
    const Table& table = TableAt(document.blocks, 0);
    ASSERT_EQ(table.rows.size(), 2u);
    const Row& row = table.rows[0];
    ASSERT_EQ(row.cells.size(), 3u);
    EXPECT_TRUE(row.repeatedHeader);
    EXPECT_EQ(row.leftEdge, -50);
    EXPECT_EQ(PlainText(row.cells[0].blocks), "a\nb\n");
    EXPECT_EQ(row.cells[0].format.rightEdge, 1000);
    EXPECT_TRUE(row.cells[0].format.bordered);
    EXPECT_EQ(row.cells[0].format.verticalMerge, CellMerge::First);
    EXPECT_EQ(row.cells[1].format.background, (Colour{9, 9, 9}));
    EXPECT_EQ(row.cells[1].format.horizontalMerge, CellMerge::First);
    EXPECT_EQ(row.cells[2].format.horizontalMerge, CellMerge::Continued);
    EXPECT_EQ(row.cells[2].format.verticalMerge, CellMerge::Continued);
    EXPECT_FALSE(row.cells[2].format.bordered);
    EXPECT_TRUE(table.rows[1].cells.at(0).format.bordered);
}

// Shape of all tables in a document: "[cells cells]" by row, nested ones inside.
std::string Shape(const std::vector<Block>& blocks)
{
    std::string shape;
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block.content)) {
            shape += PlainText(*paragraph) + ';';
            continue;
        }
        shape += '[';
        for (const Row& row : std::get<Table>(block.content).rows) {
            for (const Cell& cell : row.cells) shape += '<' + Shape(cell.blocks) + '>';
            shape += '/';
        }
        shape += ']';
    }
    return shape;
}

TEST(RichTextTables, ShapesOfOddAndNestedOnes)
{
    const Case cases[] = {
        {R"(\pard\intbl a\cell b\cell\trowd\cellx9\cellx99\row\pard c)", "[<a;><b;>/]c;"},
        {R"(\trowd\cellx9\cellx99\pard a\cell b\par c\cell\row d)", "[<a;><b;c;>/]d;"},
        {R"(\trowd\cellx9 a\cell b\cell c\cell\row)", "[<a;><b;><c;>/]"},
        {R"(a\cell b\cell\row)", "[<a;><b;>/]"},
        {R"(\pard\intbl a\par b\par\pard c)", "a;b;c;"},
        {R"(\trowd\cellx9\row\pard a)", "a;"},
        {R"(\trowd\cellx9\pard\intbl a\cell b)", "[<a;><b;>/]"},
        {R"(\pard\intbl a\par\itap2 b\nestcell c\nestcell{\*\nesttableprops\trowd\cellx5\nestrow})"
         R"({\nonesttables\par}\itap1 d\cell\row)",
         "[<a;[<b;><c;>/]d;>/]"},
        {R"(\itap3 a\nestcell{\*\nesttableprops\nestrow}\itap2 b\nestcell{\*\nesttableprops\nestrow}\itap1 c\cell\row)",
         "[<[<[<a;>/]b;>/]c;>/]"},
        {R"(\itap40 a\nestcell\nestrow\itap1 b\cell\row)", "[<a;b;>/]"},
        {R"(\nestcell\nestrow\row x)", "[<[<;>/]>/]x;"},
        {R"(\itap1 a\nestcell b\cell\row)", "[<[<a;>/]b;>/]"},
    };
    for (const Case& c : cases) EXPECT_EQ(Shape(ReadBody(c.body).blocks), c.text) << c.body;
    const Document wide =
        ReadBody("\\trowd " + Repeat("\\cellx9", 99) + Repeat("a\\cell ", 99) + "\\row");
    const Row& row = TableAt(wide.blocks, 0).rows.at(0);
    EXPECT_EQ(row.cells.size(), 64u);
    EXPECT_EQ(row.cells.back().blocks.size(), 36u);
}

const std::string kPngHex = "89504e470d0a1a0a0000000d49484452 0000000300000001\n0806000000";

TEST(RichTextPictures, DataKindAndSize)
{
    const std::string jpeg("\xFF\xD8\xFF\xE0\0\4ab\xFF\xC0\0\x11\x08\0\5\0\1\1", 18);
    const Document document = ReadBody(
        "a{\\*\\shppict{\\pict{\\*\\picprop{\\sp{\\sn a}{\\sv "
        "7}}}\\picwgoal300\\picscalex50\\picscaley0"
        "\\pngblip " +
        kPngHex + "}}{\\nonshppict{\\pict\\wmetafile8 00}}{\\pict\\jpegblip\\bin18 " + jpeg +
        "}{\\pict\\wmetafile8\\picwgoal30\\pichgoal45 0102}{\\v{\\pict\\pngblip " + kPngHex +
        "}}{\\shp{\\*\\shpinst{\\sp{\\sn pib}{\\sv{\\pict\\pngblip " + kPngHex + "}}}}}");
    std::string seen;
    for (const Picture& p : document.pictures)
        seen += std::to_string(static_cast<int>(p.kind)) + ' ' + std::to_string(p.widthPixels) +
                'x' + std::to_string(p.heightPixels) + ' ' + std::to_string(p.widthTwips) + 'x' +
                std::to_string(p.heightTwips) + '|';
    EXPECT_EQ(seen, "1 3x1 150x15|2 1x5 15x75|0 0x0 30x45|1 3x1 45x15|");
    EXPECT_EQ(document.pictures.at(0).bytes.size(), 29u);
    EXPECT_EQ(document.pictures.at(1).bytes, jpeg);
    EXPECT_EQ(ParagraphAt(document, 0).runs.at(1).picture, 0);
}

TEST(RichTextPictures, WhatCannotBeDecodedSafelyIsAPlaceholder)
{
    const std::string head = "89504e470d0a1a0a0000000d49484452";
    for (const char* size : {"0000200100000001", "0000000000000001", "000020000000ffff",
                             "0000200000002000", "ffffffffffffffff", "00"}) {
        const Document document = ReadBody("{\\pict\\pngblip\\picwgoal15 " + head + size + "}");
        EXPECT_EQ(document.pictures.at(0).kind, PictureKind::Placeholder) << size;
        EXPECT_TRUE(document.pictures.at(0).bytes.empty());
        EXPECT_EQ(document.pictures.at(0).widthTwips, 15);
    }
    const Document huge =
        ReadBody("{\\pict " + kPngHex + "\\bin16777200 " + Repeat("x", 16'777'200) + "}x");
    EXPECT_EQ(huge.pictures.at(0).kind, PictureKind::Placeholder);
}

TEST(RichTextDamage, WhatIsNoRichTextIsRefused)
{
    for (const char* bytes : {"", "plain", "<html>", "\x89PNG", "PK\3\4", "%PDF", "{\\rtb1 x}",
                              "\\rtf1 {x}", "x{\\rtf1 x}", "\xFF\xFE{\\rtf1 x}"})
        EXPECT_EQ(Refusal(bytes), ReadError::NotRichText) << bytes;
    for (const char* start : {"\xEF\xBB\xBF", "\xEF\xBB\xBF \r\n"})
        EXPECT_EQ(PlainText(ReadWhole(std::string(start) + "{\\rtf x}").blocks), "x\n");
    for (const char* bytes :
         {"{\\rtf1", "{\\rtf1\\ansi{\\fonttbl{\\f0 Ar", "{\\rtf1{\\*\\pn{\\info{\\title a}"})
        EXPECT_EQ(Refusal(bytes), ReadError::NothingReadable) << bytes;
    EXPECT_TRUE(ReadWhole("{\\rtf1}").blocks.empty());
    EXPECT_EQ(Refusal("{\\rtf1 " + Repeat("{", std::size_t{100} << 20)), ReadError::TooBig);
}

TEST(RichTextDamage, KeepsWhatItCould)
{
    const std::string nul(9, '\0');
    EXPECT_EQ(PlainText(ReadWhole("{\\rtf1 a{\\b b").blocks), "ab\n");
    EXPECT_EQ(PlainText(ReadWhole("{\\rtf1 a}}b{\\rtf1 c}" + nul).blocks), "a\n");
    EXPECT_EQ(PlainText(ReadWhole("{\\rtf1 a\\bin999999999999 b}").blocks), "a\n");
    EXPECT_EQ(PlainText(ReadWhole("{\\rtf1 a\\" + Repeat("x", 1'000'000) + " b}").blocks), "ab\n");
    EXPECT_EQ(PlainText(ReadWhole("{\\rtf1 a\\'4\\'zzb\\fs-99999999999999999999 c\\").blocks),
              "azzbc\n");
    EXPECT_EQ(PlainText(ReadWhole("{\\rtf1{\\fonttbl{\\f0 A;}\\pard text\\par}").blocks), "text\n");
}

// Groups past the thousandth are only counted, yet close and skip as they should.
TEST(RichTextDamage, AnyDepthOfGroups)
{
    const std::size_t depth = 100'000;
    EXPECT_EQ(PlainText(ReadWhole("{\\rtf1 a" + Repeat("{", depth) + "b").blocks), "ab\n");
    EXPECT_EQ(
        PlainText(
            ReadWhole("{\\rtf1 a" + Repeat("{\\b ", depth) +
                      "{\\*\\gone x}{\\info x}{\\pict 00}{\\field{\\fldinst x}{\\fldrslt y}}" +
                      Repeat("}", depth) + "c}d")
                .blocks),
        "ayc\n");
    const Document document =
        ReadWhole("{\\rtf1 " + Repeat("{\\b ", depth) + Repeat("}", depth) + "c}");
    EXPECT_FALSE(ParagraphAt(document, 0).runs.at(0).format.bold);
}

// Cut anywhere, a document gives an error or a beginning of its text.
TEST(RichTextDamage, TruncatedAtEveryByte)
{
    const std::string whole =
        R"({\rtf1\ansi{\fonttbl{\f0\fcharset0 A;}{\f1\fcharset128 B;}}{\colortbl;\red1;}one \'e9\u960?)"
        R"(\par{\listtext 1.}\ls1 {\f1\'82\'a0}\par\trowd\cellx9 c\cell\row {\field{\*\fldinst HYPERLINK "x"})"
        R"({\fldrslt link}}{\pict\pngblip 8950}{\v no}end{\shp{\*\shpinst{\shptxt box\par}}}\par})";
    const std::string text = PlainText(ReadWhole(whole).blocks);
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
    const Document many = ReadBody(Repeat("\\b a\\b0 c", 1'000'000));
    EXPECT_LE(ParagraphAt(many, 0).runs.size(), 1'000'000u);
    EXPECT_EQ(PlainText(many.blocks).size(), 2'000'001u);
    EXPECT_EQ(ReadBody("{\\field{\\fldinst HYPERLINK a}" + Repeat("{\\fldrslt b}", 999) + "}")
                  .links.size(),
              1u);
    std::string fonts = "{\\fonttbl";
    for (int i = 0; i < 70'000; ++i) fonts += "{\\f" + std::to_string(i) + " A;}";
    EXPECT_EQ(ReadBody(fonts + "}x").fonts.size(), 65'536u);
}

// The least of some readings: the processor's time, but another program may have its caches.
double SecondsToRead(const std::string& bytes, int readings)
{
    double least = 1e9;
    for (int reading = 0; reading < readings; ++reading) {
        const std::clock_t start = std::clock();
        EXPECT_FALSE(Refusal(bytes));
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
