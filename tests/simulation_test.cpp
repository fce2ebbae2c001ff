// A simulation is a value: a copy is a program of its own, and two work on two threads.
#include "replay/invariants.h"
#include "replay/monkey.h"
#include "replay/player.h"

#include <array>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace selvane::replay {
namespace {

using Script = std::vector<std::string>;

Script SomeActions(std::uint64_t seed, std::size_t count)
{
    Monkey monkey(seed);
    Script script;
    while (script.size() < count) script.push_back(monkey.Next());
    return script;
}

// What the program says after each action.
std::vector<Dump> Played(Player& player, const Script& script)
{
    std::vector<Dump> dumps;
    for (const std::string& line : script) {
        player.Do(*ParseAction(line));
        dumps.push_back(player.Take());
    }
    return dumps;
}

} // namespace

// The copy goes first: whatever it still shared with its original would be another thing by then.
TEST(SimulationValue, ACopyGoesOnAsItsOriginalWouldAndLeavesItAlone)
{
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        SCOPED_TRACE(seed);
        Player original;
        for (const std::string& line : SomeActions(seed, 10 * seed))
            original.Do(*ParseAction(line));
        const Script rest = SomeActions(1000 + seed, 25);
        Player copy = original;
        const Dump before = original.Take(Calls::Listed);
        const std::vector<Dump> ofCopy = Played(copy, rest);
        ASSERT_EQ(original.Take(Calls::Listed), before);

        Player moved = std::move(original);
        ASSERT_EQ(Played(moved, rest), ofCopy);
        ASSERT_EQ(moved.Take(Calls::Listed), copy.Take(Calls::Listed));
        ASSERT_EQ(BrokenPromise(copy), "");
    }
}

TEST(SimulationValue, TwoGoOnTwoThreadsAsEachAlone)
{
    const std::array scripts = {SomeActions(31, 50), SomeActions(32, 50)};
    std::array<std::vector<Dump>, 2> together;
    {
        std::vector<std::jthread> threads;
        for (std::size_t each = 0; each < scripts.size(); ++each)
            threads.emplace_back([&, each] {
                Player player;
                together[each] = Played(player, scripts[each]);
            });
    }
    for (std::size_t each = 0; each < scripts.size(); ++each) {
        Player alone;
        EXPECT_EQ(Played(alone, scripts[each]), together[each]);
    }
}

} // namespace selvane::replay
