// A monkey plays with the program, and what must always hold holds. A run that fails shrinks itself
// to a short script for replay.
//
// SELVANE_MONKEY_ACTIONS=1000000 core_tests --gtest_filter='Monkey.*'    the long run
#include "replay/monkey.h"
#include "replay/player.h"
#include "replay/sim_fields.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace selvane::replay {
namespace {

using Script = std::vector<std::string>;

// Seeds that once failed; they are played first.
constexpr std::uint64_t kSeedsThatFailed[] = {1};
constexpr int kActionsASeed = 400;

bool SaysNothingOdd(std::string_view text)
{
    for (const std::string_view odd : {"nan", "inf", "NaN", "INF"})
        if (text.find(odd) != std::string_view::npos) return false;
    for (std::size_t at = 1; at + 1 < text.size(); ++at) { // an exponent
        const auto digit = [&](std::size_t place) {
            return text[place] >= '0' && text[place] <= '9';
        };
        if (text[at] == 'e' && digit(at - 1) &&
            (text[at + 1] == '+' || text[at + 1] == '-' || digit(at + 1)))
            return false;
    }
    return true;
}

std::string OddText(const Player& player)
{
    const Controls& controls = player.Program().controls;
    for (const LabelRow& row : LabelTable()) // row 8 repeats what was typed
        if (row.id != lblOutput(8) && !SaysNothingOdd(controls.labels[Index(row.id)].caption))
            return std::string(row.name) + ": " + controls.labels[Index(row.id)].caption;
    for (const Stroke& stroke : player.TutorialPicture().Strokes())
        if (!SaysNothingOdd(player.TutorialPicture().TextOf(stroke)))
            return std::string(player.TutorialPicture().TextOf(stroke));
    for (const SimField& field : SimFields()) {
        const std::string text = field.text(player.Program());
        if (text == "nan" || text == "-nan" || text == "inf" || text == "-inf")
            return std::string(field.name) + ": " + text;
    }
    return "";
}

int Checked(const Simulation& sim, std::initializer_list<MenuId> items)
{
    int count = 0;
    for (const MenuId item : items) count += IsChecked(sim, item);
    return count;
}

struct Bounds
{
    ScrollBarId bar;
    int least, most;
};

// What the bars' handlers promise whenever they have returned.
constexpr Bounds kPromises[] = {{sclPeri, 0, 1000},   {sclApo, 0, 1000},    {sclPeriE, 0, 1000},
                                {sclE, -20, 99},      {sclIncl, -180, 180}, {sclRot, -360, 360},
                                {sclARGP, -360, 360}, {sclView, -359, 359}, {sclZoom, 1, 20},
                                {sclLR, 0, 0},        {sclUD, 0, 0},        {sclViewD, 0, 90}};

std::string BrokenBar(const Simulation& sim)
{
    for (const auto& [bar, least, most] : kPromises)
        if (Value(sim, bar) < least || Value(sim, bar) > most)
            return std::string(ScrollBarTable()[Index(bar)].name) + " is at " +
                   std::to_string(Value(sim, bar));
    if (Value(sim, sclApo) < Value(sim, sclPeri))
        return "the apoapsis bar is below the periapsis bar";
    if (Value(sim, sclSMajAxis) < Value(sim, sclSMinAxis))
        return "the major axis bar is below the minor";
    return "";
}

// What is wrong with the program now; empty when all is well.
std::string Broken(const Player& player)
{
    const Simulation& sim = player.Program();
    if (IsShown(sim, btnPlay) == IsShown(sim, btnPause)) return "play and pause";
    int timers = 0;
    for (const TimerId timer : {tmrSat, tmrES2, tmrSunSynch})
        timers += sim.controls.timers[Index(timer)].enabled;
    if (timers > 1) return "two flights at once";
    for (const Timer& timer : sim.controls.timers)
        if (timer.interval < 1 || timer.interval > 65535) return "an interval that no timer has";
    if (Checked(sim, {mnES2, mnSunSynch, mnGeo, mnMoly}) > 1) return "two demos are marked";
    if (Checked(sim, {mnSatelliteTracking, mnTimeStandards}) > 1) return "two tutorials are open";
    if (Checked(sim, {mnMercury, mnVenus, mnEarth, mnMars, mnJupiter}) > 1)
        return "two planets are marked";
    if (!IsChecked(sim, mnViewSatellite) && sim.controls.lblSat.visible)
        return "an unwanted marker";
    if (sim.state.OrbitMode == Scenario::Tutorial || !sim.state.RedrawEnabled)
        return "a handler left half-way";
    if (sim.controls.nesting != 0) return "a handler that has not ended";
    if (std::string bar = BrokenBar(sim); !bar.empty()) return bar;
    return OddText(player);
}

// Plays the script in a process of its own, so that a crash is an answer too.
bool Survives(const Script& script)
{
    const pid_t child = fork();
    if (child == 0) {
        Player player;
        for (const std::string& line : script) {
            player.Do(*ParseAction(line));
            const std::string broken = Broken(player);
            if (broken.empty()) continue;
            std::fprintf(stderr, "%s\n", broken.c_str());
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Leaves out what it can, in pieces half as long each time, while the script still fails.
Script Shrunk(Script script)
{
    for (std::size_t piece = script.size() / 2; piece > 0; piece /= 2)
        for (std::size_t at = 0; at + piece <= script.size();) {
            Script shorter = script;
            const auto begin = shorter.begin() + static_cast<std::ptrdiff_t>(at);
            shorter.erase(begin, begin + static_cast<std::ptrdiff_t>(piece));
            if (Survives(shorter))
                at += piece;
            else
                script = std::move(shorter);
        }
    return script;
}

void PlaySeed(std::uint64_t seed)
{
    Monkey monkey(seed);
    Script script;
    for (int each = 0; each < kActionsASeed; ++each) script.push_back(monkey.Next());
    if (Survives(script)) return;
    std::string text;
    for (const std::string& line : Shrunk(script)) text += line + '\n';
    FAIL() << "seed " << seed << " fails with\n" << text;
}

TEST(Monkey, SeedsThatFailedOnce)
{
    for (const std::uint64_t seed : kSeedsThatFailed) PlaySeed(seed);
}

TEST(Monkey, NewSeeds)
{
    using Clock = std::chrono::steady_clock;
    const char* wanted = std::getenv("SELVANE_MONKEY_ACTIONS");
    const long actions = wanted ? std::atol(wanted) : 0;
    const Clock::time_point end = Clock::now() + std::chrono::seconds(3);
    std::uint64_t seed = std::random_device{}();
    for (long played = 0; played < actions || (!wanted && Clock::now() < end);
         played += kActionsASeed) {
        PlaySeed(seed++);
        if (HasFatalFailure()) return;
    }
}

TEST(Monkey, AlwaysSaysTheSameToTheSameSeed)
{
    Monkey one(5), same(5), other(6);
    int different = 0;
    for (int each = 0; each < 2'000; ++each) {
        const std::string line = one.Next();
        EXPECT_EQ(line, same.Next());
        EXPECT_TRUE(ParseAction(line)) << line;
        different += line != other.Next();
    }
    EXPECT_GT(different, 1'000);
}

} // namespace
} // namespace selvane::replay
