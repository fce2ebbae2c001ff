// A monkey plays with the program, and what must always hold holds. A run that fails shrinks itself
// to a short script for replay, which becomes a scenario.
//
// SELVANE_MONKEY_ACTIONS=1000000 core_tests --gtest_filter='Monkey.*'    the long run
#include "replay/invariants.h"
#include "replay/monkey.h"
#include "replay/trial.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace selvane::replay {
namespace {

constexpr int kActionsASeed = 400;

std::string PlayOnTheCore(const Script& script)
{
    Player player;
    for (const std::string& line : script) {
        std::string wrong = TooLong([&] { player.Do(*ParseAction(line)); });
        if (wrong.empty()) wrong = BrokenPromise(player);
        if (!wrong.empty()) return line + ": " + wrong;
    }
    return "";
}

void PlaySeed(std::uint64_t seed)
{
    Monkey monkey(seed);
    Script script;
    for (int each = 0; each < kActionsASeed; ++each) script.push_back(monkey.Next());
    ASSERT_EQ(ShortestFailure(PlayOnTheCore, script), "") << "seed " << seed;
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
