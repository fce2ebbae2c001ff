#include "program/start_up.h"

#include "app/help_pane.h"
#include "app/planets.h"
#include "app/simulation.h"
#include "demos/default_orbit.h"
#include "tutorials/navigator.h"

#include <cmath>

namespace selvane {

void Form_Load(Simulation& sim)
{
    SimState& state = sim.state;
    state.HelpStep1 = 20;
    state.HelpStep2 = 31;
    SelectPlanet(sim, mnEarth);
    state.Pi = 4 * std::atan(1.0);
    state.PlanetRotDeg = 0;
    LoadDocument(sim, WindowId::Main, "Help(20).rtf");
    Show(sim, sclViewD, true);
    Show(sim, txtViewD, true);
    Show(sim, lblViewD, true);
}

void Form_Activate(Simulation& sim)
{
    SimState& state = sim.state;
    state.OrbitMode = Scenario::Tutorial;
    state.CurPic = PictureId::picDemo;
    state.CurrentDemo = SceneKey::Demo0;
    mnSatelliteTracking_Click(sim);
    state.CurPic = PictureId::picSelvane;
    ResetOrbit(sim);
}

void Form_Unload(Simulation& sim)
{
    CloseWindow(sim, WindowId::About);
    CloseWindow(sim, WindowId::UserGuide);
}

void ClickPlanet(Simulation& sim, MenuId item)
{
    if (IsChecked(sim, item)) {
        Check(sim, item, false);
        return;
    }
    for (const PlanetRow& row : PlanetTable()) Check(sim, row.item, row.item == item);
    SelectPlanet(sim, item);
    ResetOrbit(sim);
    sim.state.PlanetRotDeg = 0; // after the reset: its picture still shows the old angle
}

} // namespace selvane
