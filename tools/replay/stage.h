// Stage: the whole program on a scripted machine.
#pragma once

#include "program/program.h"
#include "replay/scripted_platform.h"
#include "replay/stroke_text.h"

namespace selvane::replay {

struct Stage
{
    ScriptedPlatform platform;
    Simulation sim;

    // The program as it stands after its first showing on that machine.
    explicit Stage(const LocalTime& time = {2012, 7, 28, 14, 48, 46},
                   std::set<std::string, std::less<>> missing = {})
    {
        platform.now = sim.now = time;
        platform.missing = std::move(missing);
        LoadMainWindow(sim);
        ShowMainWindow(sim);
        CarryOut(sim, platform);
    }
};

} // namespace selvane::replay
