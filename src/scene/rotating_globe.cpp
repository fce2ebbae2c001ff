#include "scene/rotating_globe.h"

#include "app/number_text.h"
#include "app/simulation.h"
#include "app/tolerance.h"
#include "scene/orbit.h"
#include "scene/planet_disc.h"
#include "scene/projection.h"
#include "scene/ring.h"
#include "scene/surroundings.h"

#include <cmath>

namespace selvane {

namespace {

void PlaceBodies(Simulation& sim)
{
    SimState& state = sim.state;
    if (SatelliteFlies(state.OrbitMode)) {
        state.SunX = -sim.picSelvane.ScaleWidth / 2;
        state.SunY = 0;
        state.PlanetX = 0;
        state.PlanetY = 0;
    } else if (IsSunCentred(state.OrbitMode)) {
        state.SunX = 0;
        state.SunY = 0;
    }
}

SunPlace PlaceOfSun(Scenario mode)
{
    if (SatelliteFlies(mode)) return SunPlace::Edge;
    return IsSunCentred(mode) ? SunPlace::Origin : SunPlace::Nowhere;
}

void DrawRing(Simulation& sim, double inclination, double roll)
{
    SimState& state = sim.state;
    state.GlobeInclDeg = inclination;
    state.GlobePosLon = Radians(state, inclination);
    state.GlobePosRoll = roll;
    const Turn turn{state.GlobePosLon, state.GlobePosRoll, state.GlobeViewRad};
    const Projected last = PlotNearHalf(sim.picSelvane, kRunningSum, {state.PosRadius, turn},
                                        {state.PlanetX, state.PlanetY});
    StoreProjected(state, last);
}

void Equator(Simulation& sim)
{
    SimState& state = sim.state;
    state.GlobeViewRad = Radians(state, state.GlobeViewDeg);
    DrawRing(sim, -state.PlanetTilt, 0);
}

void Meridian(Simulation& sim, double roll)
{
    DrawRing(sim, 90 - sim.state.PlanetTilt * std::cos(roll), roll);
}

// One correction only: a step of more than a turn leaves the rotation above 360, and nothing is
// corrected below 0.
void TurnPlanet(SimState& state)
{
    const double step = state.RotPerStep * state.SatDir;
    const double size = std::fabs(step); // a larger one could hold a slow planet at the mark
    const double turned = Snapped(Snapped(state.PlanetRotDeg + step, 0, size), 360, size);
    state.PlanetRotDeg = turned > 360 ? turned - 360 : turned;
}

void ShowClock(Simulation& sim)
{
    const SimState& state = sim.state;
    const double time = state.PlanetRotDeg * state.PlanetDay; // degrees x hours
    const double hours = SettledFloor(time / 360);
    const double minutes = std::fmod(RoundHalfEven(time / 6), 60);
    const char* name = state.PlanetName == "Earth" ? "GMT" : "Planet Time";
    SetCaption(sim, lblOutput(14),
               std::string(name) + " = " + TwoDigits(hours) + ":" + TwoDigits(minutes));
}

} // namespace

void RotatingPlanet(Simulation& sim)
{
    SimState& state = sim.state;
    Picture& picture = sim.picSelvane;
    state.CurPic = PictureId::picSelvane;
    state.PlanetPx = state.KmScale * state.PlanetRadius;
    state.ViewDeg = Number(sim, txtView); // ViewRad stays as the last projection left it
    PlaceBodies(sim);

    picture.Cls();
    ReferenceLines(state, picture);
    SunAndSunlight(sim, PlaceOfSun(state.OrbitMode));
    MarkersBehind(sim, 90 - state.PlanetTilt, std::sin(state.ViewRad));
    BarePlanet(sim);

    state.PosRadius = state.PlanetPx;
    picture.ForeColor = RGB(127, 127, 127);
    Equator(sim);
    TurnPlanet(state);
    Meridian(sim, Radians(state, state.PlanetRotDeg));
    picture.ForeColor = RGB(191, 191, 191);
    Meridian(sim, Radians(state, state.PlanetRotDeg) + state.Pi / 2);
    ShowClock(sim);

    state.SavedSatDeg = state.SatDeg;
    DrawOrbit(sim);
    state.SatDeg = state.SavedSatDeg;
    MarkersInFront(sim);
}

} // namespace selvane
