// The worksheets, their answer sheets and the teachers' page: what they say the program shows, what
// they work out by hand, how long they let one wait. A learner does each sheet from its start to
// its end on one program, whatever was done with the program before.

#include "app/control_table.h"
#include "claims.h"
#include "help_documents.h"
#include "replay/monkey.h"
#include "sum.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <numeric>
#include <random>
#include <set>

namespace selvane {
namespace {

using claims::Evened;
using replay::Player;
using rich_text::Block;
using rich_text::Cell;
using rich_text::Paragraph;
using rich_text::Row;
using rich_text::Run;
using rich_text::Table;

constexpr const char* kClaims = SELVANE_TESTS "/worksheet_claims.txt";
constexpr const char* kSums = SELVANE_TESTS "/worksheet_sums.txt";

const std::vector<std::string> kWorksheets = {"worksheets/Period1.rtf", "worksheets/Period2.rtf",
                                              "worksheets/Period3.rtf"};
const std::vector<std::string> kAnswers = {"worksheets/Period1Answers.rtf",
                                           "worksheets/Period2Answers.rtf",
                                           "worksheets/Period3Answers.rtf"};

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
    for (const Run& run : paragraph.runs) {
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
    for (const Block& block : ReadDocument(document).blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block.content)) {
            Append(*paragraph, passages.emplace_back());
            continue;
        }
        for (const Row& row : std::get<Table>(block.content).rows) {
            Passage& passage = passages.emplace_back();
            for (const Cell& cell : row.cells)
                for (const Paragraph* paragraph : Paragraphs(cell.blocks))
                    Append(*paragraph, passage);
        }
    }
    for (Passage& passage : passages) passage.text = Evened(passage.text);
    return passages;
}

// The claim or the sum that the numbers of a passage rest on.
struct Support
{
    std::string document, quote;
    std::string numbers; // the value, and what it was worked out from
};

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

std::vector<Support> Supports()
{
    std::vector<Support> supports;
    for (const claims::Page& page : claims::ReadPages(kClaims))
        for (const claims::Claim& claim : page.Claims())
            supports.push_back({page.document, claim.quote, claim.value});
    for (const Sum& sum : Sums())
        supports.push_back({sum.document, sum.quote, sum.value + ' ' + sum.expression});
    return supports;
}

// As they are written, in order; a sign is left out.
std::vector<std::string> NumbersIn(const std::string& text)
{
    constexpr const char* kDigits = "0123456789";
    std::vector<std::string> numbers;
    for (auto at = text.find_first_of(kDigits); at != std::string::npos;) {
        auto end = text.find_first_not_of(kDigits, at);
        if (end != std::string::npos && text[end] == '.')
            if (const auto last = text.find_first_not_of(kDigits, end + 1); last != end + 1)
                end = last;
        numbers.push_back(text.substr(at, end - at));
        at = text.find_first_of(kDigits, end);
    }
    return numbers;
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

// Anything that a user can do and come back from to the main window.
void DoAnything(Player& player, std::uint64_t seed, int actions)
{
    replay::Monkey monkey(seed);
    for (int each = 0; each < actions; ++each) {
        const std::string line = monkey.Next();
        const bool isTheUsers = !line.starts_with("close") && !line.starts_with("docs");
        if (isTheUsers) player.Do(*replay::ParseAction(line));
    }
    player.Do(*replay::ParseAction("activate"));
}

// While the learner reads: the timer that is on ticks, the others refuse.
void LetTimePass(Player& player, std::uint64_t ticks)
{
    for (const char* timer : {"tick tmrSat", "tick tmrES2", "tick tmrSunSynch"})
        for (std::uint64_t tick = 0; tick < ticks; ++tick) player.Do(*replay::ParseAction(timer));
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
    for (const Passage& passage : Passages(document)) {
        const std::string& text = passage.text;
        for (auto at = text.find(before); at != std::string::npos; at = text.find(before, at + 1)) {
            const std::string rest = text.substr(at + before.size());
            const auto end = rest.find_first_not_of("0123456789");
            if (end != 0 && end != std::string::npos && rest.substr(end).starts_with(after))
                found.push_back(std::atoi(rest.c_str()));
        }
    }
    return found;
}

} // namespace

TEST(Worksheets, ShowWhatTheySayFromAFreshStart)
{
    const std::vector<claims::Page> pages = claims::ReadPages(kClaims);
    EXPECT_GE(pages.size(), 6U);
    std::size_t count = 0;
    for (const claims::Page& page : pages) {
        Player player;
        claims::Learner learner(player);
        learner.DoTasks(page);
        learner.CheckFacts(page);
        count += page.Claims().size();
    }
    EXPECT_GE(count, 100U);
    std::cout << "[ COUNT    ] " << count << " claims and " << Sums().size()
              << " sums on worksheets, answer sheets and the teachers' page\n";
}

TEST(Worksheets, ShowWhatTheySayAfterAnything)
{
    const std::vector<claims::Page> pages = claims::ReadPages(kClaims);
    std::mt19937_64 random(14);
    const char* wanted = std::getenv("SELVANE_WORKSHEET_ROUNDS"); // 300 for the long run
    const int rounds = wanted ? std::atoi(wanted) : 3;
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        Player player;
        std::vector<claims::Page> order = pages;
        std::shuffle(order.begin(), order.end(), random);
        for (const claims::Page& page : order) {
            const std::uint64_t seed = random();
            SCOPED_TRACE(page.document + ", seed " + std::to_string(seed));
            DoAnything(player, seed, 50);
            claims::Learner learner(player, [&] { LetTimePass(player, random() % 40); });
            learner.DoTasks(page);
            if (HasFailure()) break;
        }
    }
}

TEST(Worksheets, ContainTheWordsOfTheirClaims)
{
    for (const claims::Page& page : claims::ReadPages(kClaims)) {
        EXPECT_TRUE(Says(page.document, page.firstWords)) << page.document << page.firstWords;
        for (const claims::Claim& claim : page.Claims())
            EXPECT_TRUE(Says(page.document, claim.quote)) << page.document << ": " << claim.quote;
    }
}

TEST(Worksheets, WorkOutByHandWhatACalculatorGives)
{
    for (const Sum& sum : Sums()) {
        EXPECT_TRUE(Says(sum.document, sum.quote)) << sum.document << ": " << sum.quote;
        const std::optional<double> value = ValueOf(sum.expression);
        ASSERT_TRUE(value) << sum.expression;
        EXPECT_EQ(Rounded(*value, sum.value), sum.value) << sum.expression;
    }
}

TEST(Worksheets, HaveAClaimOrASumForEachNumberOfAnAnswer)
{
    const std::vector<Support> supports = Supports();
    std::vector<std::string> documents = kAnswers;
    documents.emplace_back(kTeachers); // its numbers stand in bold
    for (const std::string& document : documents) {
        for (const Passage& passage : Passages(document)) {
            std::string supported;
            for (const Support& support : supports)
                if (support.document == document &&
                    passage.text.find(support.quote) != std::string::npos)
                    supported += support.numbers + ' ';
            const std::vector<std::string> listed = NumbersIn(supported);
            const std::set<std::string> known(listed.begin(), listed.end());
            const std::string& said = document == kTeachers ? passage.bold : passage.answers;
            for (const std::string& number : NumbersIn(said))
                EXPECT_TRUE(known.contains(number))
                    << document << ": " << number << " in: " << passage.text;
        }
    }
}

// Both pages say how far the simplified read-outs miss; the other one is held against the program.
TEST(Worksheets, TellTeachersWhatLearnersRead)
{
    for (const char* words :
         {"by 1.2 % on the standard orbit, and by 32 % on the Molniya orbit, whose lap is 19 % too "
          "quick",
          "up to 4.1° at inclination 30, 19.5° at 60", "3.8° at 60", "46.9° at RAAN 180"})
        for (const char* page : {kTeachers, "OrbitParameters.rtf"})
            EXPECT_TRUE(Says(page, words)) << page << ": " << words;
}

TEST(Worksheets, GiveNoAnswerAway)
{
    for (std::size_t each = 0; each < kWorksheets.size(); ++each) {
        for (const Passage& passage : Passages(kWorksheets[each]))
            EXPECT_EQ(Evened(passage.answers), "") << passage.text;
        std::set<std::string> asked;
        for (const Passage& passage : Passages(kWorksheets[each])) asked.insert(passage.text);
        int same = 0;
        for (const Passage& passage : Passages(kAnswers[each]))
            same += asked.contains(passage.text);
        EXPECT_GE(same, 20) << "the answers are to other questions than " << kWorksheets[each];
    }
}

TEST(Worksheets, FillThreePeriodsOf45Minutes)
{
    std::vector<std::vector<int>> plans; // the start, then the tasks and the exit question
    for (const Passage& passage : Passages(kTeachers)) {
        if (!passage.text.starts_with("Minutes: ")) continue;
        plans.emplace_back();
        for (const std::string& number : NumbersIn(passage.text))
            plans.back().push_back(std::atoi(number.c_str()));
    }
    ASSERT_EQ(plans.size(), kWorksheets.size());
    for (std::size_t each = 0; each < plans.size(); ++each) {
        EXPECT_EQ(std::accumulate(plans[each].begin(), plans[each].end(), 0), 45);
        const std::vector<int> tasks(plans[each].begin() + 1, plans[each].end());
        EXPECT_EQ(NumbersBetween(kWorksheets[each], "(", " minutes)"), tasks) << kWorksheets[each];
        EXPECT_EQ(NumbersBetween(kAnswers[each], "(", " minutes)"), tasks) << kAnswers[each];
    }
}

TEST(Worksheets, LetOneWaitAsLongAsTheySay)
{
    const std::string earth = "type txtPeri 600; type txtApo 3200; click btnApsisCalculate";
    const std::string low = "type txtPeri 300; type txtApo 300; click btnApsisCalculate";
    const std::map<std::string, std::vector<double>> waits = {
        {kWorksheets[0], {SecondsToWait(earth, 180)}},
        {kWorksheets[1],
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
