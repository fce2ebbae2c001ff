// The documents: that each opens and reads as it should, and that no text lies. What they say the
// program shows is read out of them and held against the program itself.

#include "app/control_table.h"
#include "app/number_text.h"
#include "claims.h"
#include "help_documents.h"
#include "replay/player.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <numbers>
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

// All documents that links can reach, by their names in the folder, lessons or not.
std::set<std::string> Names()
{
    std::set<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(SELVANE_HELP))
        if (file.path().extension() == ".rtf") names.insert(file.path().filename());
    return names;
}

// These and the documents to print, in folders of their own.
std::set<std::string> NamesInAllFolders()
{
    std::set<std::string> names;
    for (const auto& file : std::filesystem::recursive_directory_iterator(SELVANE_HELP))
        if (file.path().extension() == ".rtf")
            names.insert(std::filesystem::relative(file.path(), SELVANE_HELP).generic_string());
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
constexpr std::string_view kOtherCharacters = "’“”–×÷°²³μπ√−";

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

void ExpectGlyphs(const std::string& body)
{
    for (std::size_t at = 0; at < body.size();) {
        const auto lead = static_cast<unsigned char>(body[at]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : 3;
        if (length > 1) {
            EXPECT_NE(kOtherCharacters.find(body.substr(at, length)), std::string_view::npos)
                << body.substr(at, length);
        }
        at += length;
    }
}

// A paragraph as text, blanks and minus signs made even.
std::vector<std::string> ParagraphsOf(const std::string& document)
{
    return claims::Split(PlainText(ReadDocument(document).blocks), '\n');
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
    const std::set<std::string> names = Names();
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
    const std::set<std::string> names = Names();
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
    for (const std::string& document : NamesInAllFolders()) {
        const std::string body = PlainText(ReadDocument(document).blocks);
        for (auto at = body.find(open); at != std::string::npos; at = body.find(open, at + 1)) {
            const auto start = at + open.size();
            const std::string name = body.substr(start, body.find(close, start) - start);
            EXPECT_TRUE(names.contains(name)) << document << ": " << name;
        }
    }
}

TEST(Documents, ClaimOnlyWhatTheySayAndEveryReadOutTheyPrint)
{
    for (const Page& lesson : Lessons()) {
        SCOPED_TRACE(lesson.document);
        const std::vector<std::string> paragraphs = ParagraphsOf(lesson.document);
        const auto says = [&](const std::string& words) {
            return std::any_of(paragraphs.begin(), paragraphs.end(), [&](const std::string& one) {
                return one.find(words) != std::string::npos;
            });
        };
        EXPECT_TRUE(says(lesson.firstWords)) << lesson.firstWords;
        const std::vector<claims::Claim> claims = lesson.Claims();
        for (const claims::Claim& claim : claims) EXPECT_TRUE(says(claim.quote)) << claim.quote;
        for (const std::string& readOut : BoldReadOuts(ReadDocument(lesson.document)))
            EXPECT_TRUE(std::any_of(claims.begin(), claims.end(), [&](const claims::Claim& claim) {
                return claim.value == readOut;
            })) << readOut;
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

// The satellite's place against spherical astronomy, its pace against the area law, over one lap.
struct Misses
{
    double ascension = 0, latitude = 0, pace = 0; // degrees, degrees, share of the true time
};

Misses FlyALap(const std::string& actions)
{
    const double degree = std::numbers::pi / 180;
    Player player;
    Play(player, actions);
    const SimState& state = player.Program().state;
    const double tilt = Number(player.Program(), txtIncl) * degree;
    Misses worst;
    for (int step = 0; step < 360; ++step) {
        Play(player, "tick tmrSat");
        const double along = (state.SatDeg + 90) * degree, anomaly = state.TrueAnomaly * degree;
        const double east = std::atan2(std::sin(along) * std::cos(tilt), std::cos(along)) / degree;
        const double north = std::asin(std::sin(tilt) * std::sin(along)) / degree;
        const double parameter = state.SMajAxis * (1 - state.Ecc * state.Ecc);
        const double radius = parameter / (1 + state.Ecc * std::cos(anomaly));
        const double sideways = std::sqrt(state.PlanetMu * parameter) / radius;
        worst.ascension = std::max(worst.ascension,
                                   std::fabs(std::remainder(state.SatRA - state.RAAN - east, 360)));
        worst.latitude = std::max(worst.latitude, std::fabs(state.SatLat - north));
        worst.pace = std::max(worst.pace, 1 - sideways / state.SatVelocity);
    }
    return worst;
}

TEST(Documents, TellHowFarTheSimplifiedReadOutsMiss)
{
    const std::string body = PlainText(ReadDocument("OrbitParameters.rtf").blocks);
    const auto says = [&](const std::string& words) {
        EXPECT_NE(body.find(words), std::string::npos) << words;
    };
    const Misses low = FlyALap("scroll sclIncl 30"), standard = FlyALap(""),
                 polar = FlyALap("scroll sclIncl 90"), molniya = FlyALap("menu mnMoly");
    says("by " + FixedNumber(100 * standard.pace, 1) + " % on the standard orbit, and by " +
         FixedNumber(100 * molniya.pace, 0) + " % on the Molniya orbit");
    says("up to " + FixedNumber(low.ascension, 1) + "° at inclination 30, " +
         FixedNumber(standard.ascension, 1) + "° at 60");
    says("up to " + FixedNumber(low.latitude, 1) + "° at inclination 30, " +
         FixedNumber(standard.latitude, 1) + "° at 60, " + FixedNumber(polar.latitude, 1) +
         "° at 90");
    says(FixedNumber(FlyALap("scroll sclRot 180").latitude, 1) + "° at RAAN 180");

    double lapMs = 0; // four milliseconds on the screen for a second in space
    Player player;
    Play(player, "menu mnMoly");
    for (int step = 0; step < 360; ++step) {
        Play(player, "tick tmrSat");
        lapMs += player.Program().controls.timers[Index(tmrSat)].interval;
    }
    says("whose lap is " +
         FixedNumber(100 * (1 - lapMs / 4 / player.Program().state.PeriodSec), 0) + " % too quick");
}

} // namespace selvane
