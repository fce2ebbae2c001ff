#include "scene/globe.h"

#include "app/simulation.h"
#include "scene/planet_disc.h"
#include "scene/projection.h"
#include "scene/ring.h"
#include "scene/surroundings.h"

#include <cmath>

namespace selvane {

namespace {

// The north marker behind this globe keeps the Earth's direction on every planet.
constexpr double kFarNorthAxisDeg = 66.6;

void DrawRing(Simulation& sim, double inclination, double roll)
{
    SimState& state = sim.state;
    state.Incl = inclination;
    state.RAAN = 0;
    state.PosRoll = roll;
    state.PosLon = Radians(state, state.Incl);
    state.PosRadius = state.PlanetPx;
    LoadNegativeView(sim);
    const Turn turn{state.PosLon, state.PosRoll, state.ViewRad};
    const Projected last = PlotNearHalf(sim.picSelvane, kWholeDegrees, {state.PosRadius, turn},
                                        {state.PlanetX, state.PlanetY});
    state.PosLat = kWholeDegrees.back().radians;
    state.SatDeg = kRingPoints;
    StoreProjected(state, last);
}

// The equator and two meridians a quarter turn apart.
void Graticule(Simulation& sim)
{
    const double tilt = sim.state.PlanetTilt;
    const double quarter = sim.state.Pi / 2;
    sim.picSelvane.ForeColor = RGB(159, 159, 159);
    DrawRing(sim, -tilt, 0);
    DrawRing(sim, 90 - tilt, 0);
    DrawRing(sim, 90 - tilt * std::cos(quarter), quarter);
    sim.picSelvane.ForeColor = RGB(191, 191, 191);
}

} // namespace

void DrawPlanet(Simulation& sim)
{
    SimState& state = sim.state;
    state.CurPic = PictureId::picSelvane;
    state.SunX = 0;
    state.SunY = 0;
    state.ViewDeg = Number(sim, txtView);
    state.ViewRad = Radians(state, state.ViewDeg);
    ReferenceLines(state, sim.picSelvane);
    SunAndSunlight(sim, IsSunCentred(state.OrbitMode) ? SunPlace::Origin : SunPlace::Edge);
    MarkersBehind(sim, kFarNorthAxisDeg, std::sin(-state.ViewRad));
    BarePlanet(sim);
    Graticule(sim);
    MarkersInFront(sim);
}

} // namespace selvane
