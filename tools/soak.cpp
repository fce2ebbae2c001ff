// soak TICKS: flies through all scenarios and the clock's tutorial for so many ticks, while the
// clock steps over New Year, leap day and the changes of daylight saving. Fails when memory grows
// by a MiB after the warm-up, or when the last frame is not the one that a fresh start gives for
// the same state. The long run is `soak 10000000`.
#include "replay/stage.h"
#include "scene/redraw.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace selvane {
namespace {

using replay::Stage;

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
void EnterNext(Stage& stage, long turn)
{
    Simulation& sim = stage.sim;
    Choose(sim, kPlanets[turn / 5 % 5]);
    for (const MenuId demo : kDemos)
        if (IsChecked(sim, demo)) Choose(sim, demo);
    if (turn % 5 < 4) Choose(sim, kDemos[turn % 5]);
    if (!IsChecked(sim, mnTimeStandards)) Choose(sim, mnTimeStandards);
    Click(sim, btnNext2);
}

void TickAll(Stage& stage, long tick)
{
    if (tick % 250 == 0) stage.sim.now = kMoments[tick / 250 % std::ssize(kMoments)];
    for (const TimerId timer : {tmrSat, tmrES2, tmrSunSynch})
        if (stage.sim.controls.timers[Index(timer)].enabled) Tick(stage.sim, timer);
    if (tick % 4 == 0) Tick(stage.sim, tmrTime);
    CarryOut(stage.sim, stage.platform);
}

std::uint32_t FrameOf(Stage& stage)
{
    RedrawScene(stage.sim);
    return replay::Digest(stage.sim.picSelvane.drawing);
}

// Only what the frame is drawn from comes over.
bool LastFrameIsThatOfAFreshStart(Stage& stage)
{
    Stage fresh;
    fresh.sim.state = stage.sim.state;
    fresh.sim.controls = stage.sim.controls;
    for (double Picture::*const scale :
         {&Picture::ScaleLeft, &Picture::ScaleTop, &Picture::ScaleWidth, &Picture::ScaleHeight})
        fresh.sim.picSelvane.*scale = stage.sim.picSelvane.*scale;
    return FrameOf(stage) == FrameOf(fresh);
}

int Soak(long ticks)
{
    Stage stage;
    long warm = 0;
    for (long tick = 0; tick < ticks; ++tick) {
        if (tick % kTicksPerScenario == 0) EnterNext(stage, tick / kTicksPerScenario);
        TickAll(stage, tick);
        if (tick == ticks / 10) warm = ResidentKiB();
    }
    const long growth = ResidentKiB() - warm;
    const bool same = LastFrameIsThatOfAFreshStart(stage);
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
