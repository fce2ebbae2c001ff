// A monkey on the real window: whatever it does there, by mouse, wheel and keys, comes to the same
// as the same actions without a screen, and the screen shows it. A run that fails shrinks itself to
// a short script, which becomes a scenario.
//
// QT_QPA_PLATFORM=offscreen SELVANE_MONKEY_ACTIONS=100000 window_tests
// --gtest_filter='WindowMonkey.*'
#include "replay/player.h"
#include "replay/trial.h"
#include "window_player.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace selvane {
namespace {

constexpr std::size_t kGesturesASeed = 400;
constexpr std::size_t kGesturesARecord = 8; // the screen is compared each time, all records seldom

// What the script has come to differently on the screen; empty while all is the same.
std::string Difference(const replay::Player& core, const WindowPlayer& window)
{
    replay::Dump expected = replay::RecordsOf(core.Program());
    replay::AddPlatform(expected, core.Machine());
    return replay::Changes(expected, window.Take());
}

std::string PlayOnTheWindow(const replay::Script& script)
{
    replay::Player core;
    WindowPlayer window;
    for (std::size_t at = 0; at < script.size(); ++at) {
        std::optional<replay::Action> meaning;
        std::string wrong =
            replay::TooLong([&] { meaning = window.Do(*ParseGesture(script[at])); });
        if (meaning) core.Do(*meaning);
        wrong += window.Disagreement(core.Program());
        if ((at + 1) % kGesturesARecord == 0 || at + 1 == script.size())
            wrong += Difference(core, window);
        if (testing::Test::HasFailure()) wrong += "the toolkit has spoken";
        if (!wrong.empty()) return script[at] + ": " + wrong;
    }
    return "";
}

void PlaySeed(std::uint64_t seed)
{
    GestureMonkey monkey(seed);
    replay::Script script;
    while (script.size() < kGesturesASeed) script.push_back(monkey.Next());
    ASSERT_EQ(replay::ShortestFailure(PlayOnTheWindow, script), "") << "seed " << seed;
}

TEST(WindowMonkey, ComesToTheSameAsWithoutAScreen)
{
    using Clock = std::chrono::steady_clock;
    const char* wanted = std::getenv("SELVANE_MONKEY_ACTIONS");
    const std::size_t actions = wanted ? std::stoul(wanted) : 0;
    const Clock::time_point end = Clock::now() + std::chrono::seconds(4);
    std::uint64_t seed = std::random_device{}();
    for (std::size_t played = 0; played < actions || (!wanted && Clock::now() < end);
         played += kGesturesASeed) {
        PlaySeed(seed++);
        if (HasFailure()) return;
    }
}

} // namespace
} // namespace selvane
