// The control words that the interpreter knows: one row each. Others are passed over.
#include "rich_text/words.h"

#include <unordered_map>

namespace selvane::rich_text {

namespace {

constexpr std::string_view kUnderlines[] = {
    "ul",        "uld",        "uldash",    "uldashd",    "uldashdd", "uldb",
    "ulhair",    "ulhwave",    "ulldash",   "ulth",       "ulthd",    "ulthdash",
    "ulthdashd", "ulthdashdd", "ulthldash", "ululdbwave", "ulw",      "ulwave"};

// Groups that no reader of the body sees.
constexpr std::string_view kUnseen[] = {
    "info",         "title",      "subject",      "author",     "manager",   "company",
    "operator",     "category",   "keywords",     "comment",    "doccomm",   "hlinkbase",
    "header",       "headerl",    "headerr",      "headerf",    "footer",    "footerl",
    "footerr",      "footerf",    "footnote",     "ftnsep",     "ftnsepc",   "ftncn",
    "aftnsep",      "aftnsepc",   "aftncn",       "annotation", "atnid",     "atnauthor",
    "atntime",      "atndate",    "atnicn",       "atnref",     "atnparent", "atrfstart",
    "atrfend",      "bkmkstart",  "bkmkend",      "xe",         "tc",        "tcn",
    "rxe",          "nonshppict", "nonesttables", "shprslt",    "sn",        "picprop",
    "blipuid",      "objdata",    "objclass",     "objname",    "objalias",  "objsect",
    "falt",         "panose",     "fname",        "fontemb",    "listname",  "liststylename",
    "levelnumbers", "pnseclvl",   "filetbl",      "revtbl",     "rsidtbl",   "generator",
    "template",     "nextfile",   "private",      "background", "datafield", "formfield",
    "userprops",    "keycode"};

} // namespace

const RichTextInterpreter::WordRow* RichTextInterpreter::FindWord(std::string_view name)
{
    using I = RichTextInterpreter;
    using Character = CharacterFormat;
    using P = ParagraphFormat;
    constexpr auto at = [](auto value) { return static_cast<std::int32_t>(value); };
    constexpr bool kDestination = true;

    static const std::initializer_list<WordRow> kRows = {
        // the document and its fonts and colours
        {"ansi", &I::CharacterSet, 1252},
        {"mac", &I::CharacterSet, 10000},
        {"pc", &I::CharacterSet, 437},
        {"pca", &I::CharacterSet, 850},
        {"ansicpg", &I::CodePage},
        {"deff", &I::DefaultFont},
        {"f", &I::Font},
        {"fcharset", &I::FontCharacterSet},
        {"cpg", &I::FontCodePage},
        {"red", &I::ColourChannel, at(ColourTable::Channel::Red)},
        {"green", &I::ColourChannel, at(ColourTable::Channel::Green)},
        {"blue", &I::ColourChannel, at(ColourTable::Channel::Blue)},

        // characters
        {"uc", &I::UnicodeSkip},
        {"u", &I::Unicode},
        {"tab", &I::Character, '\t'},
        {"line", &I::Character, '\n'},
        {"lbr", &I::Character, '\n'},
        {"emdash", &I::Character, 0x2014},
        {"endash", &I::Character, 0x2013},
        {"emspace", &I::Character, 0x2003},
        {"enspace", &I::Character, 0x2002},
        {"qmspace", &I::Character, 0x2005},
        {"lquote", &I::Character, 0x2018},
        {"rquote", &I::Character, 0x2019},
        {"ldblquote", &I::Character, 0x201C},
        {"rdblquote", &I::Character, 0x201D},
        {"bullet", &I::Character, 0x2022},
        {"zwbo", &I::Character, 0x200B},
        {"zwnbo", &I::Character, 0x2060},
        {"zwj", &I::Character, 0x200D},
        {"zwnj", &I::Character, 0x200C},
        {"ltrmark", &I::Character, 0x200E},
        {"rtlmark", &I::Character, 0x200F},

        // character formats
        {"b", &I::Toggle<&Character::bold>},
        {"i", &I::Toggle<&Character::italic>},
        {"strike", &I::Toggle<&Character::strike>},
        {"striked", &I::Toggle<&Character::strike>},
        {"caps", &I::Toggle<&Character::allCapitals>},
        {"scaps", &I::Toggle<&Character::smallCapitals>},
        {"ulnone", &I::NoUnderline},
        {"super", &I::Position, at(VerticalPosition::Superscript)},
        {"sub", &I::Position, at(VerticalPosition::Subscript)},
        {"nosupersub", &I::Position, at(VerticalPosition::Baseline)},
        {"up", &I::Raise, 1},
        {"dn", &I::Raise, -1},
        {"fs", &I::FontSize},
        {"cf", &I::TextColour},
        {"cb", &I::Background},
        {"highlight", &I::Background},
        {"chcbpat", &I::Background},
        {"v", &I::Hidden},
        {"deleted", &I::Deleted},
        {"plain", &I::Plain},

        // paragraphs
        {"par", &I::EndParagraph},
        {"sect", &I::Break},
        {"page", &I::Break},
        {"column", &I::Break},
        {"pard", &I::ResetParagraph},
        {"ql", &I::Align, at(ParagraphAlignment::Left)},
        {"qc", &I::Align, at(ParagraphAlignment::Centre)},
        {"qr", &I::Align, at(ParagraphAlignment::Right)},
        {"qj", &I::Align, at(ParagraphAlignment::Justified)},
        {"li", &I::Length<&P::leftIndent>, -kLongestLength},
        {"ri", &I::Length<&P::rightIndent>, -kLongestLength},
        {"fi", &I::Length<&P::firstLineIndent>, -kLongestLength},
        {"sb", &I::Length<&P::spaceBefore>, 0},
        {"sa", &I::Length<&P::spaceAfter>, 0},
        {"sl", &I::LineSpacing},
        {"slmult", &I::Flag<&P::lineSpacingIsMultiple>, 1},
        {"pagebb", &I::Flag<&P::pageBreakBefore>, 1},
        {"ltrpar", &I::Flag<&P::rightToLeft>, 0},
        {"rtlpar", &I::Flag<&P::rightToLeft>, 1},
        {"tqr", &I::NextTabKind, at(TabKind::Right)},
        {"tqc", &I::NextTabKind, at(TabKind::Centre)},
        {"tqdec", &I::NextTabKind, at(TabKind::Decimal)},
        {"tx", &I::AddTabStop},
        {"s", &I::Style},
        {"outlinelevel", &I::Outline},

        // lists
        {"listtable", &I::HeaderTable, at(Destination::ListTable), kDestination},
        {"listoverridetable", &I::HeaderTable, at(Destination::ListOverrideTable), kDestination},
        {"list", &I::List},
        {"listlevel", &I::Level},
        {"levelnfc", &I::LevelNumberStyle},
        {"levelstartat", &I::LevelStart},
        {"leveltext", &I::Part, at(Destination::LevelText)},
        {"listid", &I::ListId},
        {"listoverride", &I::ListOverride},
        {"lfolevel", &I::ListOverrideLevel},
        {"ls", &I::ListNumber},
        {"ilvl", &I::ItemLevel},
        {"listtext", &I::StoredLabel, 0, kDestination},
        {"pntext", &I::StoredLabel, 0, kDestination},
        {"pn", &I::StartOldList, 0, kDestination},
        {"pnlvl", &I::OldListKind, -1},
        {"pnlvlcont", &I::OldListKind, 0},
        {"pnlvlblt", &I::OldListKind, 1},
        {"pnlvlbody", &I::OldListKind, 2},
        {"pncard", &I::OldListStyle, 0},
        {"pndec", &I::OldListStyle, 0},
        {"pnucrm", &I::OldListStyle, 1},
        {"pnlcrm", &I::OldListStyle, 2},
        {"pnucltr", &I::OldListStyle, 3},
        {"pnlcltr", &I::OldListStyle, 4},
        {"pnord", &I::OldListStyle, 5},
        {"pnstart", &I::OldListStart},
        {"pntxtb", &I::Part, at(Destination::OldListBefore)},
        {"pntxta", &I::Part, at(Destination::OldListAfter)},

        // tables
        {"intbl", &I::InTable},
        {"itap", &I::TableNesting},
        {"trowd", &I::StartRow},
        {"trleft", &I::RowEdge},
        {"trhdr", &I::RowIsHeader},
        {"cellx", &I::CellEdge},
        {"clmgf", &I::CellHorizontal, at(CellMerge::First)},
        {"clmrg", &I::CellHorizontal, at(CellMerge::Continued)},
        {"clvmgf", &I::CellVertical, at(CellMerge::First)},
        {"clvmrg", &I::CellVertical, at(CellMerge::Continued)},
        {"clcbpat", &I::CellBackground},
        {"clbrdrl", &I::BorderOf, at(BorderOwner::Cell)},
        {"clbrdrr", &I::BorderOf, at(BorderOwner::Cell)},
        {"clbrdrt", &I::BorderOf, at(BorderOwner::Cell)},
        {"clbrdrb", &I::BorderOf, at(BorderOwner::Cell)},
        {"trbrdrl", &I::BorderOf, at(BorderOwner::Row)},
        {"trbrdrr", &I::BorderOf, at(BorderOwner::Row)},
        {"trbrdrt", &I::BorderOf, at(BorderOwner::Row)},
        {"trbrdrb", &I::BorderOf, at(BorderOwner::Row)},
        {"trbrdrh", &I::BorderOf, at(BorderOwner::Row)},
        {"trbrdrv", &I::BorderOf, at(BorderOwner::Row)},
        {"brdrl", &I::BorderOf, at(BorderOwner::Other)},
        {"brdrr", &I::BorderOf, at(BorderOwner::Other)},
        {"brdrt", &I::BorderOf, at(BorderOwner::Other)},
        {"brdrb", &I::BorderOf, at(BorderOwner::Other)},
        {"box", &I::BorderOf, at(BorderOwner::Other)},
        {"brdrs", &I::Border},
        {"brdrth", &I::Border},
        {"brdrdb", &I::Border},
        {"brdrdot", &I::Border},
        {"brdrdash", &I::Border},
        {"brdrhair", &I::Border},
        {"cell", &I::EndCell},
        {"row", &I::EndRow},
        {"nestcell", &I::EndNestedCell},
        {"nestrow", &I::EndNestedRow},
        {"nesttableprops", &I::NestedTableProperties, 0, kDestination},

        // fields, pictures, objects, shapes
        {"field", &I::StartField, 0, kDestination},
        {"fldinst", &I::StartFieldInstruction, 0, kDestination},
        {"fldrslt", &I::StartFieldResult, 0, kDestination},
        {"pict", &I::StartPicture, 0, kDestination},
        {"picwgoal", &I::PictureLength<&PictureReader::goalWidth>},
        {"pichgoal", &I::PictureLength<&PictureReader::goalHeight>},
        {"picscalex", &I::PictureLength<&PictureReader::scaleX>},
        {"picscaley", &I::PictureLength<&PictureReader::scaleY>},
        {"shppict", &I::Transparent, 0, kDestination},
        {"object", &I::Container, 0, kDestination},
        {"result", &I::BackOutside, 0, kDestination},
        {"shp", &I::Container, 0, kDestination},
        {"shpgrp", &I::Container, 0, kDestination},
        {"shpinst", &I::Container, 0, kDestination},
        {"sp", &I::Transparent},
        {"sv", &I::ShapeValue},
        {"shptxt", &I::StartTextBox, 0, kDestination},
        {"do", &I::Container, 0, kDestination},
        {"dptxbxtext", &I::StartTextBox, 0, kDestination},
        {"upr", &I::Container, 0, kDestination},
        {"ud", &I::BackOutside, 0, kDestination},

        // tables of the header
        {"fonttbl", &I::HeaderTable, at(Destination::FontTable), kDestination},
        {"colortbl", &I::HeaderTable, at(Destination::ColourTable), kDestination},
        {"stylesheet", &I::HeaderTable, at(Destination::StyleSheet), kDestination},

    };
    static const auto kIndex = [] {
        std::unordered_map<std::string_view, WordRow> index;
        for (const WordRow& row : kRows) index.emplace(row.name, row);
        for (const auto word : kUnderlines)
            index.emplace(word, WordRow{word, &I::Toggle<&Character::underline>});
        for (const auto word : kUnseen) index.emplace(word, WordRow{word, &I::Skip});
        return index;
    }();
    const auto found = kIndex.find(name);
    return found == kIndex.end() ? nullptr : &found->second;
}

} // namespace selvane::rich_text
