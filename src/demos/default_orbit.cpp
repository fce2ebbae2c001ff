#include "demos/default_orbit.h"

#include "app/simulation.h"
#include "model/read_outs.h"
#include "model/satellite_motion.h"
#include "scene/orbit.h"
#include "scene/rotating_globe.h"

namespace selvane {

namespace {

constexpr double kPlanetRadiusPx = 50; // display units, on every planet

struct BarValue
{
    ScrollBarId bar;
    int value;
};

// The order counts: a pair pushes its partner, and the pair that moves last rules.
constexpr BarValue kDefaultShape[] = {
    {sclPeriE, 8},
    {sclE, 0},
    {sclSMinAxis, 80},
    {sclSMajAxis, 80},
};
constexpr BarValue kDefaultPlaceAndView[] = {
    {sclRot, 0}, {sclARGP, 270}, {sclView, 60}, {sclZoom, 15}, {sclPeri, 6}, {sclApo, 32},
};

void AssignDefaults(Simulation& sim)
{
    sim.state.RedrawEnabled = false;
    for (const auto& [bar, value] : kDefaultShape) Assign(sim, bar, value);
    Assign(sim, sclIncl, 60);
    SetText(sim, txtIncl, "60"); // the one field that a reset rewrites whatever the bar does
    for (const auto& [bar, value] : kDefaultPlaceAndView) {
        Assign(sim, bar, value);
        if (bar == sclARGP) sim.state.ArgpDeg = 270;
    }
    sim.state.RedrawEnabled = true;
}

void ResetScale(SimState& state)
{
    state.PlanetX = 0;
    state.PlanetY = 0;
    state.KmScale = kPlanetRadiusPx / state.PlanetRadius;
    state.PlanetPx = state.PlanetRadius * state.KmScale;
    state.Zoom = 1.2;
}

void ResetMotion(SimState& state)
{
    state.HelioDeg = 0;
    state.HelioRad = 0;
    state.SatDeg = 0;
    state.SatDir = 1;
    state.RAAN = 0;
}

} // namespace

void ResetOrbit(Simulation& sim)
{
    SimState& state = sim.state;
    state.OrbitMode = Scenario::ES1;
    state.ShapeInput = ShapePair::Apsis;
    ResetScale(state);
    AssignDefaults(sim);
    ResetMotion(state);

    sim.picSelvane.Cls();
    RotatingPlanet(sim);
    DrawOrbit(sim);
    state.SatDeg = 270; // a quarter turn before the in-plane zero

    btnPlay_Click(sim);
    Enable(sim, tmrSunSynch, false);
    Enable(sim, tmrES2, false);
    Enable(sim, tmrSat, true);
    Row10IsTrueAnomaly(sim);
}

} // namespace selvane
