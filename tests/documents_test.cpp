// The documents: that each opens and reads as it should, and that no text lies. What they say the
// program shows is read out of them and held against the program itself.

#include "app/control_table.h"
#include "app/number_text.h"
#include "replay/player.h"
#include "rich_text/reader.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <numbers>
#include <sstream>

namespace selvane {

using namespace rich_text;
namespace {

using replay::Player;

struct Document
{
    const char* name;
    std::size_t words; // at most
};

constexpr Document kDocuments[] = {
    {"Help(20).rtf", 300},        {"Help(21).rtf", 300},    {"Help(22).rtf", 300},
    {"Help(23).rtf", 300},        {"Help(31).rtf", 300},    {"Help(32).rtf", 300},
    {"GeoOrbit.rtf", 300},        {"Molniya.rtf", 300},     {"EarthSun.rtf", 300},
    {"SunSynch.rtf", 300},        {"Energy.rtf", 300},      {"Introduction.rtf", 300},
    {"MainDisplay.rtf", 500},     {"OrbitShape.rtf", 300},  {"OrbitPosition.rtf", 300},
    {"OrbitParameters.rtf", 300}, {"Terminology.rtf", 700},
};

// The control words that the documents keep to, so that any word processor opens them.
constexpr std::string_view kControlWords =
    " rtf ansi ansicpg deff deflang uc fonttbl f fswiss fcharset falt colortbl red green blue "
    "stylesheet s sbasedon snext keepn outlinelevel listtable list listtemplateid listsimple "
    "listlevel levelnfc leveljc levelstartat levelfollow leveltext levelnumbers listid "
    "listoverridetable listoverride listoverridecount ls ilvl listtext paperw paperh margl "
    "margr margt margb pard plain par tab fi li sa sb fs cf b i ul u field fldinst fldrslt ";

// Beyond ASCII the documents use these characters only; Carlito has a glyph for each, in all four
// styles.
constexpr std::string_view kOtherCharacters = "’“”–×÷°²³μπ√−";

std::string Bytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream all;
    all << file.rdbuf();
    return all.str();
}

RichText Read(const std::string& name)
{
    RichTextResult result = ReadRichTextFile(std::string(SELVANE_HELP) + '/' + name);
    if (RichText* text = std::get_if<RichText>(&result)) return std::move(*text);
    ADD_FAILURE() << name << " does not open";
    return {};
}

// Runs of blanks as one, the minus sign as a hyphen, none at the ends.
std::string Evened(std::string_view text)
{
    std::string even;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.substr(at).starts_with("−")) {
            even += '-';
            at += std::string_view("−").size() - 1;
        } else if (text[at] != ' ') {
            even += text[at];
        } else if (!even.empty() && even.back() != ' ') {
            even += ' ';
        }
    }
    if (even.ends_with(' ')) even.pop_back();
    return even;
}

std::vector<std::string> Split(const std::string& text, char mark)
{
    std::vector<std::string> parts;
    std::istringstream all(text);
    for (std::string part; std::getline(all, part, mark);) parts.push_back(Evened(part));
    return parts;
}

// Whether the text shows the value, not merely a piece of a longer word or number.
bool ShowsWhole(std::string text, std::string value)
{
    std::replace(text.begin(), text.end(), ',', ' ');
    std::replace(value.begin(), value.end(), ',', ' ');
    return Evened(' ' + text).insert(0, " ").append(" ").find(' ' + Evened(value) + ' ') !=
           std::string::npos;
}

// Does the actions, "N * action" for N times, and says which of them is none or cannot be done.
void Play(Player& player, const std::string& actions)
{
    for (const std::string& part : Split(actions, ';')) {
        const auto star = part.find(" * ");
        const int times = star == std::string::npos ? 1 : std::stoi(part);
        const auto action =
            replay::ParseAction(star == std::string::npos ? part : part.substr(star + 3));
        ASSERT_TRUE(action) << part;
        for (int time = 0; time < times; ++time) {
            const Refusal refusal = player.Do(*action);
            ASSERT_FALSE(refusal) << part << ": " << *refusal;
        }
    }
}

std::vector<std::string> PictureTexts(const Player& player)
{
    std::vector<std::string> texts;
    const raster::Drawing& drawing = player.Program().picDemo.drawing;
    for (const raster::Stroke& stroke : replay::Of(drawing, raster::StrokeKind::Text))
        texts.push_back(Evened(drawing.TextOf(stroke)));
    return texts;
}

// A line of claims.txt.
struct Claim
{
    std::string document, key, actions, quote; // the quote without its brackets
    std::string value;                         // what stood in the brackets
    std::optional<std::string> shown;          // what the dump shows where it is not the value
};

std::vector<Claim> Claims()
{
    std::vector<Claim> claims;
    std::ifstream file(SELVANE_SCENARIOS "/../claims.txt");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        const std::vector<std::string> parts = Split(line, '|');
        const auto open = parts.size() == 4 ? parts[3].find('[') : std::string::npos;
        const auto close = parts.size() == 4 ? parts[3].find(']') : std::string::npos;
        if (open > close || close == std::string::npos) {
            ADD_FAILURE() << "no claim: " << line;
            continue;
        }
        Claim claim{parts[0], parts[1], parts[2], parts[3], {}, {}};
        claim.value = claim.quote.substr(open + 1, close - open - 1);
        claim.quote.erase(close, 1).erase(open, 1);
        if (const auto sign = claim.key.find('='); sign != std::string::npos) {
            claim.shown = claim.key.substr(sign + 1);
            claim.key.erase(sign);
        }
        claims.push_back(std::move(claim));
    }
    return claims;
}

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

// A title first; a heading, then two or three numbered tasks last.
void ExpectShape(const RichText& text)
{
    const std::vector<const Paragraph*> paragraphs = Paragraphs(text.blocks);
    ASSERT_GT(paragraphs.size(), 4U);
    EXPECT_EQ(paragraphs.front()->format.headingLevel, 1);
    const auto last =
        std::find_if(paragraphs.rbegin(), paragraphs.rend(),
                     [](const Paragraph* one) { return one->format.headingLevel == 2; });
    ASSERT_NE(last, paragraphs.rend());
    EXPECT_EQ(PlainText(**last), "Predict, then look");
    const auto tasks = last - paragraphs.rbegin();
    EXPECT_TRUE(tasks == 2 || tasks == 3) << tasks;
    for (auto task = paragraphs.rbegin(); task != last; ++task) {
        ASSERT_TRUE((*task)->item) << PlainText(**task);
        EXPECT_EQ((*task)->item->label, std::to_string(last - task) + ".");
    }
}

// Every name that stands on the screen: captions, menu items, and what the lessons' scenes write.
std::set<std::string> NamesOnTheScreen()
{
    std::set<std::string> names;
    for (const LabelRow& row : LabelTable()) names.emplace(row.caption);
    for (const MenuRow& row : MenuTable()) names.emplace(row.caption);
    for (const ButtonRow& row : ButtonTable()) names.emplace(row.caption);
    Player player;
    for (const char* step : {"", "click btnNext2", "click btnNext2", "click btnNext2",
                             "menu mnTimeStandards", "click btnNext2; tick tmrTime"}) {
        Play(player, step);
        for (const std::string& text : PictureTexts(player)) names.insert(text);
        names.insert(player.Take().at("lblRange.caption"));
    }
    return names;
}

// A read-out that a document quotes stands in bold.
std::vector<std::string> BoldReadOuts(const RichText& text)
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
    std::set<std::string> names;
    for (const Document& document : kDocuments) names.emplace(document.name);
    for (const Document& document : kDocuments) {
        SCOPED_TRACE(document.name);
        const RichText text = Read(document.name);
        const std::string body = PlainText(text.blocks);
        ExpectKnownWords(Bytes(std::string(SELVANE_HELP) + '/' + document.name));
        ExpectGlyphs(body);
        ExpectShape(text);
        std::istringstream words(body);
        EXPECT_LE(std::distance(std::istream_iterator<std::string>(words), {}),
                  static_cast<std::ptrdiff_t>(document.words));
        for (const std::string& link : text.links) EXPECT_TRUE(names.contains(link)) << link;
    }
}

TEST(Documents, QuoteOnlyNamesThatStandOnTheScreen)
{
    const std::set<std::string> names = NamesOnTheScreen();
    const std::string_view open = "“", close = "”";
    for (const Document& document : kDocuments) {
        const std::string body = PlainText(Read(document.name).blocks);
        for (auto at = body.find(open); at != std::string::npos; at = body.find(open, at + 1)) {
            const auto start = at + open.size();
            const std::string name = body.substr(start, body.find(close, start) - start);
            EXPECT_TRUE(names.contains(name)) << document.name << ": " << name;
        }
    }
}

TEST(Documents, ClaimEveryReadOutAndAnswerTheyPrint)
{
    const std::vector<Claim> claims = Claims();
    EXPECT_GE(claims.size(), 60U);
    for (const Document& document : kDocuments) {
        SCOPED_TRACE(document.name);
        const RichText text = Read(document.name);
        for (const std::string& readOut : BoldReadOuts(text))
            EXPECT_TRUE(std::any_of(claims.begin(), claims.end(), [&](const Claim& claim) {
                return claim.document == document.name && claim.value == readOut;
            })) << readOut;
        const std::string body = Evened(PlainText(text.blocks));
        const std::string tasks = body.substr(body.rfind("Predict, then look"));
        EXPECT_GE(std::count_if(claims.begin(), claims.end(),
                                [&](const Claim& claim) {
                                    return claim.document == document.name &&
                                           tasks.find(claim.quote) != std::string::npos;
                                }),
                  2);
    }
}

TEST(Documents, SayWhatTheProgramShows)
{
    struct Screen
    {
        replay::Dump dump;
        std::vector<std::string> texts;
    };
    std::map<std::string, Screen> screens; // by the actions that lead there
    for (const Claim& claim : Claims()) {
        SCOPED_TRACE(claim.document + ": " + claim.quote);
        const std::vector<std::string> paragraphs =
            Split(PlainText(Read(claim.document).blocks), '\n');
        EXPECT_TRUE(std::any_of(paragraphs.begin(), paragraphs.end(), [&](const std::string& one) {
            return one.find(claim.quote) != std::string::npos;
        })) << "does not say so";
        if (!screens.contains(claim.actions)) {
            Player player;
            Play(player, claim.actions);
            screens[claim.actions] = {player.Take(), PictureTexts(player)};
        }
        const Screen& screen = screens[claim.actions];
        std::vector<std::string> shown = screen.texts;
        if (claim.key != "picDemo.text") {
            ASSERT_TRUE(screen.dump.contains(claim.key)) << claim.key;
            shown = {Evened(screen.dump.at(claim.key))};
        }
        EXPECT_TRUE(std::any_of(shown.begin(), shown.end(),
                                [&](const std::string& text) {
                                    return claim.shown ? text == *claim.shown
                                                       : ShowsWhole(text, claim.value);
                                }))
            << claim.key << " shows " << (shown.empty() ? "nothing" : shown.front());
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
    const std::string body = PlainText(Read("OrbitParameters.rtf").blocks);
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
