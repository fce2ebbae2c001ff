// The worksheets, their answer sheets and the teachers' page: what they say the program shows, what
// they work out by hand, how long they let one wait. A learner does each sheet from its start to
// its end on one program, whatever was done with the program before.

#include "app/control_table.h"
#include "app/number_text.h"
#include "help_documents.h"
#include "lessons/claims.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <gmock/gmock.h>
#include <map>
#include <muParser.h>
#include <numeric>
#include <set>

namespace selvane {
namespace {

using claims::Evened;
using replay::Player;
using rich_text::Paragraph, rich_text::Table;

constexpr const char* kLessons = SELVANE_TESTS "/claims.txt";
constexpr const char* kClaims = SELVANE_TESTS "/worksheet_claims.txt";
constexpr const char* kSums = SELVANE_TESTS "/worksheet_sums.txt";

const std::vector<std::string> kWorksheets = {"worksheets/Period1", "worksheets/Period2",
                                              "worksheets/Period3"};
constexpr const char* kAnswers = "Answers.rtf"; // behind the name of a worksheet
constexpr const char* kTeachers = "Teachers.rtf";

// What a quote may be from: a paragraph, or a row of a table with its cells joined by a blank.
struct Passage
{
    std::string text;
    std::string answers; // what of it stands in the colour of answers
    std::string bold;
};

void Append(const Paragraph& paragraph, Passage& passage)
{
    for (const rich_text::Run& run : paragraph.runs) {
        passage.text += run.text;
        if (run.format.colour == rich_text::Colour{0, 0, 192}) passage.answers += run.text;
        if (run.format.bold && paragraph.format.headingLevel == 0) passage.bold += run.text + ' ';
    }
    passage.text += ' ';
    passage.answers += ' ';
}

const std::vector<Passage>& Passages(const std::string& document)
{
    static std::map<std::string, std::vector<Passage>> read;
    const auto [entry, isNew] = read.try_emplace(document);
    std::vector<Passage>& passages = entry->second;
    if (!isNew) return passages;
    for (const rich_text::Block& block : ReadDocument(document).blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block.content)) {
            Append(*paragraph, passages.emplace_back());
            continue;
        }
        for (const auto& row : std::get<Table>(block.content).rows) {
            Passage& passage = passages.emplace_back();
            for (const auto& cell : row.cells)
                for (const Paragraph* paragraph : Paragraphs(cell.blocks))
                    Append(*paragraph, passage);
        }
    }
    for (Passage& passage : passages) passage.text = Evened(passage.text);
    return passages;
}

struct Sum
{
    std::string document, expression, quote, value;
};

std::vector<Sum> Sums()
{
    std::vector<Sum> sums;
    std::string document;
    std::ifstream file(kSums);
    EXPECT_TRUE(file);
    for (std::string line; std::getline(file, line);) {
        line = Evened(line);
        if (line.empty() || line[0] == '#') continue;
        if (line.starts_with("page ")) {
            document = line.substr(5);
            continue;
        }
        const std::vector<std::string> parts = claims::Split(line, '|');
        const auto open = line.find('['), close = line.find(']');
        if (parts.size() != 2 || close == std::string::npos || open > close) {
            ADD_FAILURE() << "no sum: " << line;
            continue;
        }
        Sum sum{document, parts[0], parts[1], line.substr(open + 1, close - open - 1)};
        std::erase_if(sum.quote, [](char c) { return c == '[' || c == ']'; });
        sums.push_back(std::move(sum));
    }
    return sums;
}

// What the numbers of a passage that has the quote rest on: values, and what they were worked out
// from.
std::multimap<std::string, std::string> NumbersByQuote(const std::string& document)
{
    std::multimap<std::string, std::string> numbers;
    for (const claims::Page& page : claims::ReadPages(kClaims))
        if (page.document == document)
            for (const claims::Claim& claim : page.Claims())
                numbers.emplace(claim.quote, claim.value);
    for (const Sum& sum : Sums())
        if (sum.document == document) numbers.emplace(sum.quote, sum.value + ' ' + sum.expression);
    return numbers;
}

// As they are written, in order; a sign is left out.
std::vector<std::string> NumbersIn(const std::string& text)
{
    constexpr const char* kDigits = "0123456789";
    std::vector<std::string> numbers;
    for (auto at = text.find_first_of(kDigits); at != std::string::npos;) {
        const auto end = text.find_first_not_of("0123456789.", at);
        numbers.push_back(text.substr(at, end - at));
        if (numbers.back().ends_with('.')) numbers.back().pop_back();
        at = text.find_first_of(kDigits, end);
    }
    return numbers;
}

// The value of a calculation as a learner writes it, with angles in degrees.
double ValueOf(const std::string& expression)
{
    constexpr double kDegree = std::numbers::pi / 180;
    mu::Parser parser;
    parser.DefineConst("pi", std::numbers::pi);
    parser.DefineFun("cbrt", static_cast<double (*)(double)>(std::cbrt));
    parser.DefineFun("sin", [](double angle) { return std::sin(angle * kDegree); });
    parser.DefineFun("cos", [](double angle) { return std::cos(angle * kDegree); });
    parser.DefineFun("tan", [](double angle) { return std::tan(angle * kDegree); });
    parser.DefineFun("asin", [](double value) { return std::asin(value) / kDegree; });
    parser.DefineFun("acos", [](double value) { return std::acos(value) / kDegree; });
    parser.DefineFun("atan", [](double value) { return std::atan(value) / kDegree; });
    try {
        parser.SetExpr(expression);
        return parser.Eval();
    } catch (const mu::ParserError& error) {
        ADD_FAILURE() << expression << ": " << error.GetMsg();
        return 0;
    }
}

std::string Rounded(double value, const std::string& like)
{
    const auto point = like.find('.');
    char text[64];
    std::snprintf(text, sizeof text, "%.*f",
                  point == std::string::npos ? 0 : static_cast<int>(like.size() - point - 1),
                  value);
    return text;
}

// Seconds of the clock on the wall for a number of steps of the satellite.
double SecondsToWait(const std::string& actions, int steps)
{
    Player player;
    for (const std::string& action : claims::Split(actions, ';'))
        player.Do(*replay::ParseAction(action));
    double milliseconds = 0;
    for (int step = 0; step < steps; ++step) {
        player.Do(*replay::ParseAction("tick tmrSat"));
        milliseconds += player.Program().controls.timers[Index(tmrSat)].interval;
    }
    return milliseconds / 1000;
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
    claims::Play(player, actions);
    const SimState& state = player.Program().state;
    const double tilt = Number(player.Program(), txtIncl) * degree;
    Misses worst;
    for (int step = 0; step < 360; ++step) {
        claims::Play(player, "tick tmrSat");
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

bool Says(const std::string& document, const std::string& words)
{
    const std::vector<Passage>& passages = Passages(document);
    return std::any_of(passages.begin(), passages.end(), [&](const Passage& passage) {
        return passage.text.find(words) != std::string::npos;
    });
}

// The whole numbers between the two texts in a document: 10 of "(10 minutes)".
std::vector<int> NumbersBetween(const std::string& document, const std::string& before,
                                const std::string& after)
{
    std::vector<int> found;
    const std::string format = before + "%d" + after + "%n";
    for (const Passage& passage : Passages(document))
        for (auto at = passage.text.find(before); at != std::string::npos;
             at = passage.text.find(before, at + 1)) {
            int number = 0, end = 0;
            std::sscanf(passage.text.c_str() + at, format.c_str(), &number, &end);
            if (end > 0) found.push_back(number);
        }
    return found;
}

} // namespace

TEST(Worksheets, ContainTheWordsOfTheirClaimsAndSoDoTheLessons)
{
    for (const char* file : {kClaims, kLessons})
        for (const claims::Page& page : claims::ReadPages(file)) {
            EXPECT_TRUE(Says(page.document, page.firstWords)) << page.document << page.firstWords;
            for (const claims::Claim& claim : page.Claims())
                EXPECT_TRUE(Says(page.document, claim.quote))
                    << page.document << ": " << claim.quote;
        }
}

TEST(Worksheets, WorkOutByHandWhatACalculatorGives)
{
    for (const Sum& sum : Sums()) {
        EXPECT_TRUE(Says(sum.document, sum.quote)) << sum.document << ": " << sum.quote;
        EXPECT_EQ(Rounded(ValueOf(sum.expression), sum.value), sum.value) << sum.expression;
    }
}

TEST(Worksheets, HaveAClaimOrASumForEachNumberOfAnAnswer)
{
    std::vector<std::string> documents{kTeachers}; // its numbers stand in bold
    for (const std::string& sheet : kWorksheets) documents.push_back(sheet + kAnswers);
    for (const std::string& document : documents) {
        const auto supports = NumbersByQuote(document);
        for (const Passage& passage : Passages(document)) {
            std::string supported;
            for (const auto& [quote, numbers] : supports)
                if (passage.text.find(quote) != std::string::npos) supported += numbers + ' ';
            for (const std::string& number :
                 NumbersIn(document == kTeachers ? passage.bold : passage.answers))
                EXPECT_THAT(NumbersIn(supported), testing::Contains(number))
                    << document << ": " << passage.text;
        }
    }
}

// The satellite's lap on the screen takes four milliseconds for a second in space.
TEST(Worksheets, TellTeachersAndLearnersHowFarTheSimplifiedReadOutsMiss)
{
    const Misses low = FlyALap("scroll sclIncl 30"), standard = FlyALap(""),
                 polar = FlyALap("scroll sclIncl 90"), molniya = FlyALap("menu mnMoly");
    const auto degrees = [](double angle) { return FixedNumber(angle, 1) + "°"; };
    const auto percent = [](double share, int decimals) {
        return FixedNumber(100 * share, decimals) + " %";
    };
    Player player;
    claims::Play(player, "menu mnMoly");
    const double lap = player.Program().state.PeriodSec * 0.004;
    const std::string onBothPages[] = {
        "by " + percent(standard.pace, 1) + " on the standard orbit, and by " +
            percent(molniya.pace, 0) + " on the Molniya orbit, whose lap is " +
            percent(1 - SecondsToWait("menu mnMoly", 360) / lap, 0) + " too quick",
        "up to " + degrees(low.ascension) + " at inclination 30, " + degrees(standard.ascension) +
            " at 60",
        degrees(standard.latitude) + " at 60",
        degrees(FlyALap("scroll sclRot 180").latitude) + " at RAAN 180"};
    for (const char* page : {"OrbitParameters.rtf", kTeachers})
        for (const std::string& words : onBothPages)
            EXPECT_TRUE(Says(page, words)) << page << ": " << words;
    const std::string latitudes = "up to " + degrees(low.latitude) + " at inclination 30, " +
                                  degrees(standard.latitude) + " at 60, " +
                                  degrees(polar.latitude) + " at 90";
    EXPECT_TRUE(Says("OrbitParameters.rtf", latitudes)) << latitudes;
}

TEST(Worksheets, GiveNoAnswerAway)
{
    for (const std::string& sheet : kWorksheets) {
        std::set<std::string> asked;
        for (const Passage& passage : Passages(sheet + ".rtf")) {
            EXPECT_EQ(Evened(passage.answers), "") << passage.text;
            asked.insert(passage.text);
        }
        const auto same =
            std::ranges::count_if(Passages(sheet + kAnswers), [&](const Passage& passage) {
                return asked.contains(passage.text);
            });
        EXPECT_GE(same, 20) << "the answers are to other questions than " << sheet;
    }
}

TEST(Worksheets, FillThreePeriodsOf45Minutes)
{
    auto sheet = kWorksheets.begin();
    for (const Passage& passage : Passages(kTeachers)) {
        if (!passage.text.starts_with("Minutes: ")) continue;
        ASSERT_NE(sheet, kWorksheets.end());
        std::vector<int> plan; // the start, then the tasks and the exit question
        for (const std::string& number : NumbersIn(passage.text)) plan.push_back(std::stoi(number));
        EXPECT_EQ(std::accumulate(plan.begin(), plan.end(), 0), 45);
        plan.erase(plan.begin());
        for (const std::string& document : {*sheet + ".rtf", *sheet + kAnswers})
            EXPECT_EQ(NumbersBetween(document, "(", " minutes)"), plan) << document;
        ++sheet;
    }
    EXPECT_EQ(sheet, kWorksheets.end());
}

TEST(Worksheets, LetOneWaitAsLongAsTheySay)
{
    const std::string earth = "type txtPeri 600; type txtApo 3200; click btnApsisCalculate";
    const std::string low = "type txtPeri 300; type txtApo 300; click btnApsisCalculate";
    const std::map<std::string, std::vector<double>> waits = {
        {kWorksheets[0] + ".rtf", {SecondsToWait(earth, 180)}},
        {kWorksheets[1] + ".rtf",
         {SecondsToWait("menu mnGeo", 90), 30, SecondsToWait(low, 360),
          SecondsToWait("menu mnMoly", 180)}},
        {kTeachers, {SecondsToWait("menu mnGeo", 180)}},
    };
    for (const auto& [sheet, seconds] : waits) {
        const std::vector<int> said = NumbersBetween(sheet, "bout ", " seconds");
        ASSERT_EQ(said.size(), seconds.size()) << sheet;
        for (std::size_t each = 0; each < said.size(); ++each)
            EXPECT_NEAR(said[each], seconds[each], 0.1 * seconds[each]) << sheet;
    }
}

} // namespace selvane
