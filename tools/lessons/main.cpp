// lessons CLAIMS [FROM COUNT]: does the tasks of the pages that the file of claims is about, as
// learners would, and prints what the program does not show as a page says. First in reading order
// on one program, and what is said of a fresh program on one; then, on a program each, COUNT other
// orders from number FROM on, always the same one for a number: before each page comes a user who
// does anything, and before each task time passes.
#include "lessons/claims.h"
#include "replay/monkey.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <random>

namespace selvane::claims {
namespace {

constexpr int kActionsBefore = 50; // of a user who does anything, before each page
constexpr int kLongestPause = 7;   // ticks of a timer while the learner reads

bool AllHolds(const Learner& learner, const std::string& when)
{
    for (const std::string& fault : learner.Faults())
        std::printf("%s: %s\n", when.c_str(), fault.c_str());
    return learner.Faults().empty();
}

bool HoldInReadingOrder(const std::vector<Page>& pages)
{
    replay::Player player;
    Learner learner(player);
    for (const Page& page : pages) {
        learner.DoTasks(page);
        learner.CheckFacts(page);
    }
    return AllHolds(learner, "in reading order");
}

bool HoldOfAFreshProgram(const Page& page)
{
    bool hold = true;
    for (const Block& block : page.blocks) {
        if (block.kind != Block::Kind::fresh) continue;
        replay::Player player;
        Learner learner(player);
        learner.CheckFresh({page.document, {}, {}, {block}});
        hold = AllHolds(learner, "fresh") && hold;
    }
    return hold;
}

// The documents are all there, and the main window is the one in front, as for anybody who reads.
void BringToFront(replay::Player& player, const std::vector<Page>& pages)
{
    for (const Page& page : pages) Play(player, "docs present " + page.document);
    Play(player, "activate unless window.active=main");
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

bool HoldInOrder(int number, const std::vector<Page>& pages)
{
    const std::string name = "order " + std::to_string(number);
    std::mt19937_64 random(static_cast<std::uint64_t>(number));
    replay::Monkey anybody(random());
    replay::Player player;
    Learner learner(player, [&] { Wait(player, random); });
    std::vector<const Page*> shuffled;
    for (const Page& page : pages) shuffled.push_back(&page);
    std::shuffle(shuffled.begin(), shuffled.end(), random);
    for (const Page* page : shuffled) {
        for (int each = 0; each < kActionsBefore; ++each)
            player.Do(*replay::ParseAction(anybody.Next()));
        BringToFront(player, pages);
        learner.DoTasks(*page);
        if (!AllHolds(learner, name)) return false; // the first fault says it
    }
    learner.CheckFacts(*shuffled.back());
    return AllHolds(learner, name);
}

} // namespace
} // namespace selvane::claims

int main(int count, char** words)
{
    using namespace selvane::claims;
    if (count != 2 && count != 4) {
        std::fputs("usage: lessons CLAIMS [FROM COUNT]\n", stderr);
        return 2;
    }
    try {
        const std::vector<Page> pages = ReadPages(words[1]);
        bool hold = HoldInReadingOrder(pages);
        for (const Page& page : pages) hold = HoldOfAFreshProgram(page) && hold;
        const int from = count == 4 ? std::atoi(words[2]) : 0;
        const int orders = count == 4 ? std::atoi(words[3]) : 0;
        for (int number = from; number < from + orders; ++number)
            hold = HoldInOrder(number, pages) && hold;
        std::printf("%zu pages, %d other orders: %s\n", pages.size(), orders,
                    hold ? "all holds" : "NOT all holds");
        return hold ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "lessons: %s\n", fault.what());
        return 2;
    }
}
