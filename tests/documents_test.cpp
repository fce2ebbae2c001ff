// The documents: that each opens and reads as it should, and that no text lies. What they say the
// program shows is read out of them and held against the program itself.

#include "app/control_table.h"
#include "help_documents.h"
#include "lessons/claims.h"
#include "replay/player.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace selvane {
namespace {

using claims::Evened;
using claims::Page;
using claims::Play;
using replay::Player;
using rich_text::Paragraph;
using rich_text::Paragraphs;
using rich_text::PlainText;
using rich_text::Run;

const std::vector<Page>& Lessons()
{
    static const std::vector<Page> pages = claims::ReadPages(SELVANE_TESTS "/claims.txt");
    return pages;
}

// Those that links can reach; the ones to print stand in folders of their own.
std::set<std::string> Linked()
{
    std::set<std::string> names = NamesOfDocuments();
    std::erase_if(names, [](auto& name) { return name.find('/') != std::string::npos; });
    return names;
}

// The control words that the documents keep to, so that any word processor opens them.
constexpr std::string_view kControlWords =
    " rtf ansi ansicpg deff deflang uc fonttbl f fswiss fcharset falt colortbl red green blue "
    "stylesheet s sbasedon snext keepn outlinelevel listtable list listtemplateid listsimple "
    "listlevel levelnfc leveljc levelstartat levelfollow leveltext levelnumbers listid "
    "listoverridetable listoverride listoverridecount ls ilvl listtext paperw paperh margl "
    "margr margt margb pard plain par tab fi li sa sb fs cf b i ul u field fldinst fldrslt trowd "
    "trgaph trleft "
    "clbrdrb brdrs brdrw cellx intbl cell row ";

// Beyond ASCII the documents use these characters only; Carlito has a glyph for each, in all four
// styles.
constexpr std::string_view kOtherCharacters[] = {"’", "“", "”", "–", "×", "÷", "°",
                                                 "²", "³", "μ", "π", "√", "−"};

void ExpectKnownWords(const std::string& bytes)
{
    for (std::size_t at = bytes.find('\\'); at != std::string::npos;
         at = bytes.find('\\', at + 1)) {
        std::string word;
        while (std::isalpha(static_cast<unsigned char>(bytes[at + 1 + word.size()])))
            word += bytes[at + 1 + word.size()];
        if (word.empty())
            EXPECT_NE(std::string_view("'*{}").find(bytes[at + 1]), std::string::npos);
        else
            EXPECT_NE(kControlWords.find(' ' + word + ' '), std::string_view::npos) << '\\' << word;
    }
}

void ExpectGlyphs(std::string body)
{
    for (const std::string_view other : kOtherCharacters)
        for (auto at = body.find(other); at != std::string::npos; at = body.find(other, at))
            body.erase(at, other.size());
    for (const char rest : body) EXPECT_GT(rest, 0) << body;
}

// The numbered items that follow the heading.
std::vector<std::string> ItemsUnder(const rich_text::Document& text, const std::string& heading)
{
    std::vector<std::string> items;
    bool under = false;
    for (const Paragraph* paragraph : Paragraphs(text.blocks)) {
        if (paragraph->format.headingLevel > 0) under = PlainText(*paragraph) == heading;
        if (!under || !paragraph->item || !std::isdigit(paragraph->item->label.front())) continue;
        items.push_back(Evened(PlainText(*paragraph)));
        EXPECT_EQ(paragraph->item->label, std::to_string(items.size()) + ".");
    }
    return items;
}

// A lesson: its title and goal; tasks, and before them what to do first; and an answer to each
// under the last heading, where they are not seen with the tasks.
void ExpectLesson(const rich_text::Document& text)
{
    const std::vector<const Paragraph*> paragraphs = Paragraphs(text.blocks);
    std::vector<std::string> headings, words;
    for (const Paragraph* one : paragraphs) {
        words.push_back(Evened(PlainText(*one)));
        if (one->format.headingLevel == 2) headings.push_back(words.back());
    }
    ASSERT_GT(headings.size(), 2U);
    EXPECT_EQ(paragraphs.front()->format.headingLevel, 1);
    EXPECT_TRUE(words[1].starts_with("After this page you can ") ||
                words[2].starts_with("After this page you can "));
    ASSERT_EQ(std::count(headings.begin(), headings.end(), "Predict, then look"), 1);
    EXPECT_EQ(headings.back(), "Answers");
    const auto tasks = std::find(words.begin(), words.end(), "Predict, then look");
    EXPECT_TRUE((tasks + 1)->starts_with("First: ")) << *(tasks + 1);
    EXPECT_GE(ItemsUnder(text, "Predict, then look").size(), 3U);
    EXPECT_EQ(ItemsUnder(text, "Predict, then look").size(), ItemsUnder(text, "Answers").size());
}

// Every name that stands on the screen: captions, menu items, and what the lessons' scenes write.
std::set<std::string> NamesOnTheScreen()
{
    std::set<std::string> names;
    for (const LabelRow& row : LabelTable()) names.emplace(row.caption);
    for (const MenuRow& row : MenuTable()) names.emplace(row.caption);
    for (const ButtonRow& row : ButtonTable()) names.emplace(row.caption);
    names.insert("Day"); // where others read "True Anomaly"
    Player player;
    for (const char* step :
         {"", "click btnNext2", "click btnNext2", "click btnNext2", "menu mnTimeStandards",
          "click btnNext2; tick tmrTime", "menu mnMars; tick tmrSat"}) {
        Play(player, step);
        for (const std::string& text : claims::Shown(player, "picDemo.text")) names.insert(text);
        for (const auto& [key, value] : player.Take()) // "Period" of "Period = 125 Min"
            if (key.ends_with(".caption")) names.insert(value.substr(0, value.find(" = ")));
    }
    return names;
}

// A read-out that a document quotes stands in bold.
std::vector<std::string> BoldReadOuts(const rich_text::Document& text)
{
    std::vector<std::string> found;
    for (const Paragraph* paragraph : Paragraphs(text.blocks))
        for (const Run& run : paragraph->runs)
            if (run.format.bold && run.text.find(" = ") != std::string::npos)
                found.push_back(Evened(run.text));
    return found;
}

} // namespace

TEST(Documents, OpenAndAreWrittenForAnyWordProcessorAndTheFont)
{
    const std::set<std::string> names = Linked();
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const rich_text::Document text = ReadDocument(name);
        ExpectKnownWords(BytesOfDocument(name));
        ExpectGlyphs(PlainText(text.blocks));
        for (const std::string& link : text.links) EXPECT_TRUE(names.contains(link)) << link;
    }
}

TEST(Documents, LeadFromEachLessonToAnyPage)
{
    const std::set<std::string> names = Linked();
    for (const Page& lesson : Lessons()) {
        std::set<std::string> reached{lesson.document};
        std::vector<std::string> open{lesson.document};
        while (!open.empty()) {
            const rich_text::Document text = ReadDocument(open.back());
            open.pop_back();
            for (const std::string& link : text.links)
                if (reached.insert(link).second) open.push_back(link);
        }
        EXPECT_EQ(reached, names) << lesson.document;
    }
}

TEST(Documents, QuoteOnlyNamesThatStandOnTheScreen)
{
    const std::set<std::string> names = NamesOnTheScreen();
    const std::string_view open = "“", close = "”";
    for (const std::string& document : NamesOfDocuments()) {
        const std::string body = PlainText(ReadDocument(document).blocks);
        for (auto at = body.find(open); at != std::string::npos; at = body.find(open, at + 1)) {
            const auto start = at + open.size();
            const std::string name = body.substr(start, body.find(close, start) - start);
            EXPECT_TRUE(names.contains(name)) << document << ": " << name;
        }
    }
}

TEST(Documents, ClaimEveryReadOutTheyPrint)
{
    for (const Page& lesson : Lessons()) {
        std::set<std::string> claimed;
        for (const claims::Claim& claim : lesson.Claims()) claimed.insert(claim.value);
        for (const std::string& readOut : BoldReadOuts(ReadDocument(lesson.document)))
            EXPECT_TRUE(claimed.contains(readOut)) << lesson.document << ": " << readOut;
    }
}

TEST(Documents, AskBeforeTheyAnswer)
{
    for (const Page& lesson : Lessons()) {
        if (lesson.firstWords.empty()) continue; // a page without tasks
        SCOPED_TRACE(lesson.document);
        const rich_text::Document text = ReadDocument(lesson.document);
        ExpectLesson(text);
        const std::vector<std::string> tasks = ItemsUnder(text, "Predict, then look");
        const auto done = std::count_if(
            lesson.blocks.begin(), lesson.blocks.end(),
            [](const claims::Block& block) { return block.kind == claims::Block::Kind::task; });
        EXPECT_EQ(static_cast<std::size_t>(done), tasks.size());
        for (const std::string& readOut : BoldReadOuts(text))
            for (const std::string& task : tasks)
                EXPECT_EQ(task.find(readOut), std::string::npos) << readOut;
    }
}

} // namespace selvane
