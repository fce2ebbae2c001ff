#include "scene/redraw.h"

#include "app/simulation.h"
#include "scene/globe.h"
#include "scene/orbit.h"
#include "scene/rotating_globe.h"

namespace selvane {

void RedrawScene(Simulation& sim)
{
    sim.picSelvane.Cls();
    if (IsSunCentred(sim.state.OrbitMode))
        DrawPlanet(sim);
    else
        RotatingPlanet(sim);
    DrawOrbit(sim);
}

void RedrawIfEnabled(Simulation& sim)
{
    if (sim.state.RedrawEnabled) RedrawScene(sim);
}

} // namespace selvane
