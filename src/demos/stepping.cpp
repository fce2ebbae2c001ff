#include "demos/stepping.h"

#include "app/simulation.h"
#include "demos/sun_scene.h"
#include "model/read_outs.h"
#include "model/satellite_motion.h"

namespace selvane {

namespace {

void StepSatellite(Simulation& sim, int direction)
{
    SimState& state = sim.state;
    state.SatDeg += direction;
    state.SatDir = direction;
    // To 0, not to the remainder: a redraw leaves 361, and the satellite starts again from there.
    if (direction > 0 ? state.SatDeg >= 360 : state.SatDeg <= -360) state.SatDeg = 0;
    SatControl(sim);
}

void StepPlanet(Simulation& sim, int direction)
{
    SimState& state = sim.state;
    state.HelioDeg += direction;
    if (state.HelioDeg >= 360) state.HelioDeg = 0;
    if (state.HelioDeg < 0) state.HelioDeg += 360;
    ShowDay(sim);
    PlanetPosition(sim);
}

void StepByHand(Simulation& sim, int direction)
{
    const Scenario mode = sim.state.OrbitMode;
    if (SatelliteFlies(mode)) StepSatellite(sim, direction);
    if (IsSunCentred(mode)) StepPlanet(sim, direction);
}

} // namespace

void btnAdvance_Click(Simulation& sim)
{
    StepByHand(sim, +1);
}

void btnReverse_Click(Simulation& sim)
{
    StepByHand(sim, -1);
}

} // namespace selvane
