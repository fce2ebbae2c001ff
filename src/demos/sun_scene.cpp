#include "demos/sun_scene.h"

#include "app/help_pane.h"
#include "demos/default_orbit.h"
#include "demos/demonstration.h"
#include "model/read_outs.h"
#include "model/satellite_motion.h"
#include "scene/globe.h"
#include "scene/orbit.h"

#include <cmath>

namespace selvane {

namespace {

struct SunScene
{
    Scenario mode;
    MenuId item;
    TimerId timer;
    DemoSettings settings;
    std::string_view document;
};

constexpr SunScene kEarthSun{
    Scenario::ES2, mnES2, tmrES2, {10, 75, std::nullopt, 0, 0, 6, 32}, "EarthSun.rtf"};

constexpr SunScene kSunSynchronous{Scenario::SunSynch,
                                   mnSunSynch,
                                   tmrSunSynch,
                                   {10, 98, std::nullopt, 0, 0, 8, 8},
                                   "SunSynch.rtf"};

constexpr double kPathRadius = 240; // display units at zoom 1, so pixels on the screen

void RunOnly(Simulation& sim, TimerId timer)
{
    for (const TimerId other : {tmrSat, tmrES2, tmrSunSynch}) Enable(sim, other, other == timer);
}

// Draws nothing itself, unless the zoom moves: the first tick draws.
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

} // namespace

void mnES2_Click(Simulation& sim)
{
    if (IsChecked(sim, mnES2)) {
        Check(sim, mnES2, false);
        ResetOrbit(sim);
        return;
    }
    EnterSunScene(sim, kEarthSun);
}

void tmrES2_Timer(Simulation& sim)
{
    AdvanceHalfADegree(sim);
}

void mnSunSynch_Click(Simulation& sim)
{
    if (IsChecked(sim, mnSunSynch)) {
        Check(sim, mnSunSynch, false);
        ResetOrbit(sim);
    } else {
        EnterSunScene(sim, kSunSynchronous);
    }
    btnPlay_Click(sim);
}

void tmrSunSynch_Timer(Simulation& sim)
{
    AdvanceHalfADegree(sim);
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
