// The tasks of all documents, done one after another on one running program, in whatever order a
// reader takes the pages and whatever was done to the program before.
//
// SELVANE_ORDERS=10000 core_tests --gtest_filter='*Lessons*'    more orders than usual
#include "claims.h"
#include "replay/monkey.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace selvane::claims {
namespace {

constexpr const char* kFiles[] = {"claims.txt"}; // beside this test
constexpr int kShares = 6;                       // of the orders, so that they run side by side
constexpr int kOrders = 300;
constexpr int kActionsBefore = 50; // of a user who does anything, before each page
constexpr int kLongestPause = 7;   // ticks of a timer while the learner reads

std::vector<Page> AllPages()
{
    std::vector<Page> all;
    for (const char* file : kFiles)
        for (Page& page : ReadPages(std::string(SELVANE_TESTS "/") + file))
            all.push_back(std::move(page));
    return all;
}

void Do(replay::Player& player, const std::string& line)
{
    player.Do(*replay::ParseAction(line));
}

// The documents are all there, and the main window is the one in front, as for anybody who reads.
void BringToFront(replay::Player& player, const std::vector<Page>& pages)
{
    for (const Page& page : pages) Do(player, "docs present " + page.document);
    if (Shown(player, "window.active").front() != "main") Do(player, "activate");
}

// Time passes: the timer that is on ticks, the others refuse.
void Wait(replay::Player& player, std::mt19937_64& random)
{
    for (const char* timer : {"tick tmrSat", "tick tmrES2", "tick tmrSunSynch", "tick tmrTime"}) {
        const auto ticks = random() % (kLongestPause + 1);
        const auto tick = *replay::ParseAction(timer);
        for (std::uint64_t each = 0; each < ticks && !player.Do(tick); ++each) {
        }
    }
}

TEST(Lessons, HoldInReadingOrderOnOneProgram)
{
    replay::Player player;
    Learner learner(player);
    for (const Page& page : AllPages()) {
        learner.DoTasks(page);
        learner.CheckFacts(page);
    }
}

TEST(Lessons, SayWhatAFreshProgramShows)
{
    for (const Page& page : AllPages()) {
        for (const Block& block : page.blocks) {
            if (block.kind != Block::Kind::fresh) continue;
            SCOPED_TRACE(page.document);
            replay::Player player;
            Learner(player).Work(block);
        }
    }
}

class LessonsInAnyOrder : public testing::TestWithParam<int>
{};

TEST_P(LessonsInAnyOrder, HoldAfterAnyUser)
{
    const char* wanted = std::getenv("SELVANE_ORDERS");
    const int orders = wanted ? std::atoi(wanted) : kOrders;
    std::vector<Page> pages = AllPages();
    for (int order = GetParam(); order < orders; order += kShares) {
        SCOPED_TRACE("order " + std::to_string(order));
        std::mt19937_64 random(static_cast<std::uint64_t>(order));
        replay::Monkey anybody(random());
        replay::Player player;
        Learner learner(player, [&] { Wait(player, random); });
        std::vector<const Page*> shuffled;
        for (const Page& page : pages) shuffled.push_back(&page);
        std::shuffle(shuffled.begin(), shuffled.end(), random);
        for (const Page* page : shuffled) {
            for (int each = 0; each < kActionsBefore; ++each) Do(player, anybody.Next());
            BringToFront(player, pages);
            learner.DoTasks(*page);
            if (HasFailure()) return; // the first one says it
        }
        learner.CheckFacts(*shuffled.back());
    }
}

INSTANTIATE_TEST_SUITE_P(Lessons, LessonsInAnyOrder, testing::Range(0, kShares));

} // namespace
} // namespace selvane::claims
