// A monkey on the real window: whatever it does there, by mouse and keys, comes to the same as the
// same actions without a screen, and the screen shows it.
//
// SELVANE_MONKEY_ACTIONS=100000 window_tests --gtest_filter='WindowMonkey.*'    the long run
#include "replay/monkey.h"
#include "replay/player.h"
#include "window_player.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace selvane {
namespace {

constexpr int kActionsASeed = 150;

// What the script has come to differently on the screen; empty while all is the same.
std::string Difference(const replay::Player& core, WindowPlayer& window)
{
    replay::Dump expected = replay::RecordsOf(core.Program());
    if (std::string control = window.Disagreement(); !control.empty()) return "shown: " + control;
    replay::AddPlatform(expected, core.Machine());
    return replay::Changes(expected, window.Take());
}

void PlaySeed(std::uint64_t seed)
{
    replay::Monkey monkey(seed);
    replay::Player core;
    WindowPlayer window;
    std::string script;
    for (int each = 0; each < kActionsASeed; ++each) {
        const std::string line = monkey.Next();
        script += line + '\n';
        core.Do(*replay::ParseAction(line));
        window.Do(*replay::ParseAction(line));
        const std::string difference = Difference(core, window);
        ASSERT_EQ(difference, "") << "seed " << seed << " after\n" << script;
    }
}

TEST(WindowMonkey, ComesToTheSameAsWithoutAScreen)
{
    using Clock = std::chrono::steady_clock;
    const char* wanted = std::getenv("SELVANE_MONKEY_ACTIONS");
    const long actions = wanted ? std::atol(wanted) : 0;
    const Clock::time_point end = Clock::now() + std::chrono::seconds(4);
    std::uint64_t seed = std::random_device{}();
    for (long played = 0; played < actions || (!wanted && Clock::now() < end);
         played += kActionsASeed) {
        PlaySeed(seed++);
        if (HasFailure()) return;
    }
}

} // namespace
} // namespace selvane
