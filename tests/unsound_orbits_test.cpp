// Inputs that describe no orbit: the last orbit flies on, the fields say why, and afterwards the
// program is where it would be had they never been there.

#include "app/number_text.h"
#include "replay/player.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace selvane {
namespace {

using replay::Player;
using Lines = std::vector<std::string>;

// Long stays where every way in differs; each further text goes the same way for a while.
constexpr std::size_t kLongStay = 400, kShortStay = 50;

void Do(Player& player, const Lines& lines)
{
    for (const std::string& line : lines)
        EXPECT_FALSE(player.Do(*replay::ParseAction(line))) << line;
}

const std::string& Fault(const Player& player, FieldId field)
{
    return player.Program().controls.fields[Index(field)].fault;
}

// No caption shows what is no number; row 8 repeats what the user typed.
void ExpectOnlyNumbers(const Player& player)
{
    for (const auto& [key, value] : replay::RecordsOf(player.Program())) {
        if (!key.ends_with(".caption") || key == "lblOutput(8).caption") continue;
        EXPECT_EQ(value.find("nan"), std::string::npos) << key << "=" << value;
        EXPECT_EQ(value.find("inf"), std::string::npos) << key << "=" << value;
    }
}

// One way into an orbit that has no value and out of it again, by a pair of fields and their
// button.
struct Detour
{
    std::string button;
    FieldId first, second;
    Lines into, out;
    // How often the button is clicked instead, each way, by the program that is never there: it
    // redraws as often.
    std::size_t clicks = 0;
};

std::vector<Detour> Detours()
{
    const std::string axis = "click btnAxisCalculate", apsis = "click btnApsisCalculate";
    const Lines bothAxes{"scroll sclSMajAxis 80", "scroll sclSMinAxis 80"};
    std::vector<Detour> detours{
        {axis, txtSMajAxis, txtSMinAxis, {"scroll sclSMajAxis -5"}, bothAxes, 2},
        {axis, txtSMajAxis, txtSMinAxis, {"scroll sclSMinAxis 0"}, {"scroll sclSMinAxis 80"}, 1},
        {apsis, txtPeri, txtApo, {"type txtPeri -20000"}, {"type txtPeri 600"}},
        {apsis, txtPeri, txtApo, {"type txtApo 1e308", apsis}, {"type txtApo 3200", apsis}, 1},
    };
    for (const std::string text : {"", "8000 km", "nan", "1e400", "-8000"})
        detours.push_back({axis,
                           txtSMajAxis,
                           txtSMinAxis,
                           {"type txtSMajAxis " + text},
                           {"type txtSMajAxis 8000"}});
    for (const std::string text : {"1", "-1", "1e308"})
        detours.push_back(
            {"click btnECalculate", txtPeriE, txtE, {"type txtE " + text}, {"type txtE 0.00"}});
    return detours;
}

struct Flight
{
    Lines begin;
    std::string tick;
};

const std::vector<Flight> kFlights{{{}, "tick tmrSat"},
                                   {{"menu mnGeo"}, "tick tmrSat"},
                                   {{"menu mnMoly"}, "tick tmrSat"},
                                   {{"menu mnES2"}, "tick tmrES2"},
                                   {{"menu mnSunSynch"}, "tick tmrSunSynch"}};

} // namespace

TEST(UnsoundOrbits, TheLastOrbitFliesOnAndTheDetourLeavesNothingBehind)
{
    std::size_t at = 0;
    for (const Detour& detour : Detours()) {
        const Flight& flight = kFlights[at++ % kFlights.size()];
        SCOPED_TRACE(detour.into.front() + " before " + flight.tick);
        const Lines instead(detour.clicks, detour.button);
        Player there, never;
        for (Player* player : {&there, &never}) {
            Do(*player, flight.begin);
            Do(*player, {detour.button});
        }
        Do(there, detour.into);
        Do(never, instead);
        const Lines stay(at <= 5 ? kLongStay : kShortStay, flight.tick);
        for (Player* player : {&there, &never}) Do(*player, stay);
        EXPECT_NE(Fault(there, detour.first), "");
        EXPECT_EQ(Fault(there, detour.first), Fault(there, detour.second));
        EXPECT_EQ(there.Program().state.SMajAxis, never.Program().state.SMajAxis);
        ExpectOnlyNumbers(there);

        Do(there, detour.out);
        Do(never, instead);
        for (Player* player : {&there, &never}) Do(*player, {flight.tick});
        EXPECT_EQ(Fault(there, detour.first), "");
        EXPECT_EQ(replay::Changes(never.Take(), there.Take()), "");
    }
}

TEST(UnsoundOrbits, OnlyTheRulingPairIsMarked)
{
    Player player;
    Do(player, {"type txtE 3", "click btnECalculate"});
    EXPECT_NE(Fault(player, txtE), "");
    Do(player, {"click btnApsisCalculate"});
    EXPECT_EQ(Fault(player, txtE), "");
    EXPECT_EQ(Fault(player, txtPeriE), "");
}

// What is typed in the other fields is a number all the same: the longest prefix, or 0.
TEST(UnsoundOrbits, NoTextInAnyFieldBreaksAnyScenario)
{
    const Lines texts{std::string(10000, '7'),
                      "1e308",
                      "-1e308",
                      "-0",
                      "  5",
                      "5 km",
                      "½",
                      "\t",
                      "🛰",
                      "",
                      "1e400",
                      "nan",
                      "0.9999999999999999",
                      "-6370.9999999999999"};
    const Lines fields{"txtPeri", "txtApo", "txtPeriE", "txtE",    "txtSMinAxis", "txtSMajAxis",
                       "txtIncl", "txtRot", "txtARGP",  "txtView", "txtViewD",    "txtRange"};
    std::size_t turn = 0;
    for (const Flight& flight : kFlights) {
        Player player;
        Do(player, flight.begin);
        for (const std::string& field : fields) {
            for (const std::string& text : texts) {
                if (turn++ % kFlights.size() != 0) continue; // the flights share all pairs
                SCOPED_TRACE(field + "=" + text.substr(0, 30) + " before " + flight.tick);
                if (field == "txtRange") Do(player, {"menu mnTimeStandards", "click btnNext2"});
                Do(player, {"type " + field + " " + text});
                EXPECT_EQ(replay::RecordsOf(player.Program()).at(field + ".text").substr(0, 4),
                          OneLine(text).substr(0, 4));
                for (const char* button : {"Apsis", "E", "Axis"})
                    Do(player, {std::string("click btn") + button + "Calculate", flight.tick});
                if (field == "txtRange") Do(player, {"tick tmrTime", "menu mnTimeStandards"});
                ExpectOnlyNumbers(player);
            }
            if (field == "txtViewD") Do(player, {"menu mnSatelliteTracking"});
        }
    }
}

} // namespace selvane
