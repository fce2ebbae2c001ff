#include "demos/sun_scene.h"

#include "app/help_pane.h"
#include "model/read_outs.h"
#include "scene/globe.h"
#include "scene/orbit.h"

#include <cmath>

namespace selvane {

namespace {

constexpr double kPathRadius = 240; // display units at zoom 1, so pixels on the screen

void RunOnly(Simulation& sim, TimerId timer)
{
    for (const TimerId other : {tmrSat, tmrES2, tmrSunSynch}) Enable(sim, other, other == timer);
}

} // namespace

void EnterSunScene(Simulation& sim, const SunScene& scene)
{
    SimState& state = sim.state;
    state.OrbitMode = scene.mode;
    CheckDemo(sim, scene.item);
    AssignSettings(sim, scene.settings);
    state.HelioDeg = 0;
    state.HelioPx = kPathRadius;
    RunOnly(sim, scene.timer);
    ShowMarker(sim, false);
    LoadDocument(sim, WindowId::Main, scene.document);
    ResetOutputLabels(sim);
    Show(sim, lblReturnToTutorial, true);
    Row10IsElapsedDays(sim);
}

void AdvanceHalfADegree(Simulation& sim)
{
    SimState& state = sim.state;
    state.HelioDeg += 0.5;
    if (state.HelioDeg >= 360) state.HelioDeg = 0;
    ShowDay(sim);
    PlanetPosition(sim);
}

void PlanetPosition(Simulation& sim)
{
    SimState& state = sim.state;
    state.HelioRad = Radians(state, state.HelioDeg);
    state.PlanetX = state.HelioPx * std::cos(state.HelioRad) / state.Zoom;
    state.PlanetY = state.HelioPx * std::sin(state.HelioRad) / state.Zoom;
    state.SunX = 0;
    state.SunY = 0;
    sim.picSelvane.Cls();
    DrawPlanet(sim);
    DrawOrbit(sim);
}

} // namespace selvane
