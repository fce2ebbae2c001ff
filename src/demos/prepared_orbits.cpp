#include "demos/prepared_orbits.h"

#include "app/help_pane.h"
#include "demos/default_orbit.h"
#include "demos/demonstration.h"
#include "model/read_outs.h"
#include "model/satellite_motion.h"
#include "scene/globe.h"
#include "scene/orbit.h"

namespace selvane {

namespace {

constexpr DemoSettings kGeosynchronous{8, 0, std::nullopt, 0, 0, 358, 358};
constexpr DemoSettings kMolniya{9, 63, "63.4", 15, 60, 6, 397};

void Enter(Simulation& sim, Scenario mode, MenuId item, const DemoSettings& settings,
           std::string_view document)
{
    sim.state.OrbitMode = mode;
    CheckDemo(sim, item);
    AssignSettings(sim, settings);
    Enable(sim, tmrES2, false);
    Enable(sim, tmrSunSynch, false);
    sim.picSelvane.Cls();
    DrawPlanet(sim);
    DrawOrbit(sim);
    LoadDocument(sim, WindowId::Main, document);
    sim.state.PlanetX = 0;
    sim.state.PlanetY = 0;
}

void Leave(Simulation& sim, MenuId item)
{
    Check(sim, item, false);
    ResetOrbit(sim);
}

// Both ways of the handlers end alike.
void SetOff(Simulation& sim)
{
    btnPlay_Click(sim);
    Show(sim, lblReturnToTutorial, true);
    Row10IsTrueAnomaly(sim);
}

} // namespace

void mnGeo_Click(Simulation& sim)
{
    if (IsChecked(sim, mnGeo))
        Leave(sim, mnGeo);
    else
        Enter(sim, Scenario::Geo, mnGeo, kGeosynchronous, "GeoOrbit.rtf");
    sim.state.SatDeg = 0;
    SetOff(sim);
}

void mnMoly_Click(Simulation& sim)
{
    if (IsChecked(sim, mnMoly))
        Leave(sim, mnMoly);
    else
        Enter(sim, Scenario::Moly, mnMoly, kMolniya, "Molniya.rtf");
    SetOff(sim);
}

} // namespace selvane
