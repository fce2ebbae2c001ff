// The Sun-centred scene of two demonstrations: the Sun in the middle of the picture, the planet
// with its satellite's orbit travelling round it while a day counter runs. The satellite itself is
// not shown. The clock of the scene is one angle, HelioDeg.
#pragma once

#include "demos/demonstration.h"

namespace selvane {

struct SunScene
{
    Scenario mode;
    MenuId item;
    TimerId timer;
    DemoSettings settings;
    std::string_view document;
};

// Starts the scene. Draws nothing itself, unless the zoom moves: the first tick draws.
void EnterSunScene(Simulation& sim, const SunScene& scene);

// A tick: half a degree round the Sun, with the day counter; at 360 it starts again from 0.
void AdvanceHalfADegree(Simulation& sim);

// Places planet and Sun by HelioDeg and paints the whole picture. The path keeps its size on the
// screen at every zoom. Writes HelioRad, PlanetX, PlanetY, SunX, SunY.
void PlanetPosition(Simulation& sim);

} // namespace selvane
