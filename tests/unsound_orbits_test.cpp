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
constexpr int kLongStay = 1000, kShortStay = 50;

void DoLine(Player& player, const std::string& line)
{
    const auto action = replay::ParseAction(line);
    ASSERT_TRUE(action) << line;
    EXPECT_FALSE(player.Do(*action)) << line;
}

void Do(Player& player, const Lines& lines)
{
    for (const std::string& line : lines) DoLine(player, line);
}

const std::string& Fault(const Player& player, FieldId field)
{
    return player.Program().controls.fields[Index(field)].fault;
}

// No caption shows what is no number; row 8 repeats what the user typed.
void ExpectOnlyNumbers(const replay::Dump& dump)
{
    for (const auto& [key, value] : dump) {
        if (!key.ends_with(".caption") || key == "lblOutput(8).caption") continue;
        EXPECT_EQ(value.find("nan"), std::string::npos) << key << "=" << value;
        EXPECT_EQ(value.find("inf"), std::string::npos) << key << "=" << value;
    }
}

// One way into an orbit that has no value and out of it again. What `meanwhile` does instead
// redraws as often and changes nothing, for the program that is never there.
struct Detour
{
    const char* name;
    FieldId first, second; // of the pair that rules
    Lines before, into, out;
    Lines insteadOfInto, insteadOfOut;
};

const Lines kAxis{"click btnAxisCalculate"};
const Lines kApsis{"click btnApsisCalculate"};
const Lines kE{"click btnECalculate"};

std::vector<Detour> Detours()
{
    std::vector<Detour> detours{
        {"axis by bar",
         txtSMajAxis,
         txtSMinAxis,
         kAxis,
         {"scroll sclSMajAxis -5"},
         {"scroll sclSMajAxis 80", "scroll sclSMinAxis 80"},
         {"click btnAxisCalculate", "click btnAxisCalculate"},
         {"click btnAxisCalculate", "click btnAxisCalculate"}},
        {"minor axis of 0 by bar",
         txtSMajAxis,
         txtSMinAxis,
         kAxis,
         {"scroll sclSMinAxis 0"},
         {"scroll sclSMinAxis 80"},
         kAxis,
         kAxis},
        {"apsides", txtPeri, txtApo, kApsis, {"type txtPeri -20000"}, {"type txtPeri 600"}, {}, {}},
        {"apsis and button",
         txtPeri,
         txtApo,
         kApsis,
         {"type txtApo 1e308", "click btnApsisCalculate"},
         {"type txtApo 3200", "click btnApsisCalculate"},
         kApsis,
         kApsis},
    };
    for (const char* text : {"", "8000 km", "nan", "1e400", "-8000"})
        detours.push_back({text,
                           txtSMajAxis,
                           txtSMinAxis,
                           kAxis,
                           {std::string("type txtSMajAxis ") + text},
                           {"type txtSMajAxis 8000"},
                           {},
                           {}});
    for (const char* text : {"1", "-1", "1e308"})
        detours.push_back({text,
                           txtPeriE,
                           txtE,
                           kE,
                           {std::string("type txtE ") + text},
                           {"type txtE 0.00"},
                           {},
                           {}});
    return detours;
}

const char* const kScenarios[] = {"", "menu mnGeo", "menu mnMoly", "menu mnES2", "menu mnSunSynch"};

std::string TickOf(const char* scenario)
{
    const std::string_view name(scenario);
    if (name == "menu mnES2") return "tick tmrES2";
    return name == "menu mnSunSynch" ? "tick tmrSunSynch" : "tick tmrSat";
}

} // namespace

TEST(UnsoundOrbits, TheLastOrbitFliesOnAndTheDetourLeavesNothingBehind)
{
    int at = 0;
    for (const Detour& detour : Detours()) {
        const char* scenario = kScenarios[at++ % 5];
        SCOPED_TRACE(std::string(detour.name) + " in '" + scenario + "'");
        Player there, never;
        for (Player* player : {&there, &never}) {
            if (*scenario) DoLine(*player, scenario);
            Do(*player, detour.before);
        }
        Do(there, detour.into);
        Do(never, detour.insteadOfInto);
        for (int tick = 0; tick < (at <= 5 ? kLongStay : kShortStay); ++tick) {
            DoLine(there, TickOf(scenario));
            DoLine(never, TickOf(scenario));
        }
        EXPECT_NE(Fault(there, detour.first), "");
        EXPECT_EQ(Fault(there, detour.first), Fault(there, detour.second));
        EXPECT_EQ(there.Program().state.SMajAxis, never.Program().state.SMajAxis);
        ExpectOnlyNumbers(there.Take());

        Do(there, detour.out);
        Do(never, detour.insteadOfOut);
        DoLine(there, TickOf(scenario));
        DoLine(never, TickOf(scenario));
        EXPECT_EQ(Fault(there, detour.first), "");
        EXPECT_EQ(replay::Changes(never.Take(), there.Take()), "");
    }
}

TEST(UnsoundOrbits, OnlyTheRulingPairIsMarked)
{
    Player player;
    Do(player, {"type txtE 3", "click btnECalculate"});
    EXPECT_NE(Fault(player, txtE), "");
    DoLine(player, "click btnApsisCalculate");
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
    for (const char* scenario : kScenarios) {
        Player player;
        if (*scenario) DoLine(player, scenario);
        for (const std::string& field : fields) {
            for (const std::string& text : texts) {
                SCOPED_TRACE(field + "=" + text.substr(0, 30) + " in '" + scenario + "'");
                if (field == "txtRange") Do(player, {"menu mnTimeStandards", "click btnNext2"});
                DoLine(player, "type " + field + " " + text);
                EXPECT_EQ(player.Take().at(field + ".text").substr(0, 4),
                          OneLine(text).substr(0, 4));
                for (const Lines& button : {kApsis, kE, kAxis}) {
                    Do(player, button);
                    DoLine(player, TickOf(scenario));
                }
                if (field == "txtRange") Do(player, {"tick tmrTime", "menu mnTimeStandards"});
                ExpectOnlyNumbers(player.Take());
            }
            if (field == "txtViewD") Do(player, {"menu mnSatelliteTracking"});
        }
    }
}

} // namespace selvane
