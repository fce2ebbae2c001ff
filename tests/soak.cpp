// soak TICKS: flies through all scenarios and the clock's tutorial for so many ticks, while the
// clock steps over New Year, leap day and the changes of daylight saving. Fails when memory grows
// by a MiB after the warm-up, or when the last frame is not the one that a fresh start gives for
// the same state. The long run is `soak 10000000`.
#include "bench.h"
#include "scene/redraw.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace selvane {
namespace {

constexpr MenuId kDemos[] = {mnGeo, mnMoly, mnES2, mnSunSynch};
constexpr MenuId kPlanets[] = {mnMars, mnJupiter, mnMercury, mnVenus, mnEarth};
constexpr long kTicksPerScenario = 5000;
#if defined(__SANITIZE_ADDRESS__)
constexpr long kMostGrowthKiB = 1 << 20; // a sanitizer keeps what was freed
#else
constexpr long kMostGrowthKiB = 1024;
#endif

// Moments round which a clock misbehaves; spring and autumn changes jump by an hour.
constexpr LocalTime kMoments[] = {
    {2025, 12, 31, 23, 59, 59}, {2026, 1, 1, 0, 0, 0},  {2024, 2, 28, 23, 59, 59},
    {2024, 2, 29, 12, 0, 0},    {2024, 3, 1, 0, 0, 0},  {2024, 12, 31, 23, 59, 59},
    {2026, 3, 29, 1, 59, 59},   {2026, 3, 29, 3, 0, 0}, {2026, 10, 25, 2, 59, 59},
    {2026, 10, 25, 2, 0, 0},
};

long ResidentKiB()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + 6);
    return 0;
}

// Turns to the next scenario: a planet and one of the four demonstrations or the default orbit,
// with the clock's tutorial open beside it.
void EnterNext(Bench& bench, long turn)
{
    Simulation& sim = bench.sim;
    Choose(sim, kPlanets[turn / 5 % 5]);
    for (const MenuId demo : kDemos)
        if (IsChecked(sim, demo)) Choose(sim, demo);
    if (turn % 5 < 4) Choose(sim, kDemos[turn % 5]);
    if (!IsChecked(sim, mnTimeStandards)) Choose(sim, mnTimeStandards);
    Click(sim, btnNext2);
}

void TickAll(Bench& bench, long tick)
{
    if (tick % 250 == 0) bench.platform.now = kMoments[tick / 250 % std::ssize(kMoments)];
    for (const TimerId timer : {tmrSat, tmrES2, tmrSunSynch})
        if (bench.On(timer)) Tick(bench.sim, timer);
    if (tick % 4 == 0) Tick(bench.sim, tmrTime);
}

std::vector<Stroke> FrameOf(Bench& bench)
{
    bench.picSelvane.keeping = true;
    RedrawScene(bench.sim);
    return bench.picSelvane.strokes;
}

bool LastFrameIsThatOfAFreshStart(Bench& bench)
{
    Bench fresh;
    fresh.sim.state = bench.sim.state;
    fresh.sim.state.CurPic = &fresh.picSelvane;
    fresh.sim.controls = bench.sim.controls;
    fresh.picSelvane.ScaleLeft = bench.picSelvane.ScaleLeft;
    fresh.picSelvane.ScaleTop = bench.picSelvane.ScaleTop;
    fresh.picSelvane.ScaleWidth = bench.picSelvane.ScaleWidth;
    fresh.picSelvane.ScaleHeight = bench.picSelvane.ScaleHeight;
    return FrameOf(bench) == FrameOf(fresh);
}

int Soak(long ticks)
{
    Bench bench;
    bench.picSelvane.keeping = bench.picDemo.keeping = false;
    long warm = 0;
    for (long tick = 0; tick < ticks; ++tick) {
        if (tick % kTicksPerScenario == 0) EnterNext(bench, tick / kTicksPerScenario);
        TickAll(bench, tick);
        if (tick == ticks / 10) warm = ResidentKiB();
    }
    const long growth = ResidentKiB() - warm;
    const bool same = LastFrameIsThatOfAFreshStart(bench);
    std::printf("%ld ticks: memory grew by %ld KiB, the last frame is %s\n", ticks, growth,
                same ? "that of a fresh start" : "NOT that of a fresh start");
    return growth < kMostGrowthKiB && same ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace selvane

int main(int count, char** words)
{
    const long ticks = count == 2 ? std::atol(words[1]) : 0;
    if (ticks < 1) {
        std::fputs("usage: soak TICKS\n", stderr);
        return 2;
    }
    return selvane::Soak(ticks);
}
