#include "demos/demonstration.h"

namespace selvane {

void CheckDemo(Simulation& sim, MenuId item)
{
    for (const MenuRow& row : MenuTable())
        if (row.under == mnMovies) Check(sim, row.id, row.id == item);
}

void AssignSettings(Simulation& sim, const DemoSettings& settings)
{
    sim.state.RedrawEnabled = false;
    Assign(sim, sclZoom, settings.zoom);
    Assign(sim, sclIncl, settings.inclination);
    if (settings.inclinationText) SetText(sim, txtIncl, std::string(*settings.inclinationText));
    Assign(sim, sclRot, settings.node);
    Assign(sim, sclView, settings.view);
    Assign(sim, sclPeri, settings.periapsis);
    Assign(sim, sclApo, settings.apoapsis);
    sim.state.RedrawEnabled = true;
}

} // namespace selvane
