// Stage: the whole program on a scripted machine, with pictures that keep their strokes.
#pragma once

#include "program/program.h"
#include "replay/recording_surface.h"
#include "replay/scripted_platform.h"

namespace selvane::replay {

struct Stage
{
    ScriptedPlatform platform;
    RecordingSurface picSelvane{kPicSelvane.place.width, kPicSelvane.place.height};
    RecordingSurface picDemo{kPicDemo.place.width, kPicDemo.place.height};
    Simulation sim{picSelvane, picDemo, platform, TheWiring()};

    // The program as it stands after its first showing on that machine.
    explicit Stage(const LocalTime& time = {2012, 7, 28, 14, 48, 46},
                   std::set<std::string, std::less<>> missing = {})
    {
        platform.now = time;
        platform.missing = std::move(missing);
        Load(sim);
        FirstShowing(sim);
    }
};

} // namespace selvane::replay
