#include "model/satellite_motion.h"

#include "app/number_text.h"
#include "app/simulation.h"
#include "app/tolerance.h"
#include "model/read_outs.h"
#include "scene/orbit_elements.h"
#include "scene/projection.h"
#include "scene/rotating_globe.h"

#include <cmath>

namespace selvane {

namespace {

constexpr double kMillisecondsPerSecond = 4; // of the orbit: 250 times faster than real time

double DistanceNow(const SimState& state)
{
    return RadiusAt(state.SMajAxis, state.Ecc, Radians(state, state.SatDeg - state.ArgpDeg - 90));
}

// Kepler's area law: the time of one degree at that distance, as a share of the planet's day.
double RotationPerStep(const SimState& state, double distance)
{
    return (state.PeriodHours / state.PlanetDay) * (distance * distance) /
           (state.SMajAxis * state.SMinAxis);
}

double OneTurnCorrected(double degrees)
{
    if (degrees >= 360) degrees -= 360;
    if (degrees < 0) degrees += 360;
    return degrees;
}

// As above, but a full turn stays.
double OneTurnCorrectedAbove(double degrees)
{
    if (degrees > 360) return degrees - 360;
    return degrees < 0 ? degrees + 360 : degrees;
}

void WorkOutMotion(SimState& state, double distance)
{
    state.RotPerStep = RotationPerStep(state, distance);
    state.TrueAnomaly = OneTurnCorrected(state.SatDeg - state.ArgpDeg + 90);
    state.AngRate = AngularRate(state.PlanetMu, distance, state.SMajAxis);
    state.SatVelocity = state.AngRate * distance;
    state.AngRate = state.AngRate * 180 / state.Pi;
    state.SecPerDeg = 1 / state.AngRate;
    state.PotentialEnergy = -state.PlanetMu / distance;
    state.KineticEnergy = state.SatVelocity * state.SatVelocity / 2;
    state.TotalEnergy = state.KineticEnergy + state.PotentialEnergy;
}

// The satellite's place on the picture.
Projected ProjectSatellite(Simulation& sim, double distance)
{
    SimState& state = sim.state;
    state.PosRadius = distance * state.KmScale;
    state.PosLat = Radians(state, state.SatDeg);
    return XYProjection(sim);
}

void PlaceMarker(Simulation& sim, const Projected& place)
{
    const SimState& state = sim.state;
    Marker& marker = sim.controls.lblSat;
    const bool inSight = IsInSight(place, state.PlanetPx);
    ShowMarker(sim, inSight);
    if (!inSight) return;
    marker.back = IsInShadow(place, state.PlanetPx) ? RGB(127, 127, 127) : kWhite;
    marker.left = place.x + state.PlanetX - 2;
    marker.top = place.y + state.PlanetY + 2;
}

void WorkOutPlace(SimState& state)
{
    state.SatRA = OneTurnCorrectedAbove(state.SatDeg + state.RAAN + 90);
    const double longitude = state.SatRA + 90 - state.PlanetRotDeg;
    state.SatLon = OneTurnCorrectedAbove(Snapped(Snapped(longitude, 0, 360), 360, 360));
    if (state.ProjPlaneDist == 0) return; // the latitude has no value and stays
    // The second term takes out the equator's tilt, so that an orbit on it reads 0 all round.
    const double latitude = 180 * std::atan(state.ProjPlaneZ / state.ProjPlaneDist) / state.Pi +
                            state.PlanetTilt * std::cos(state.PosLat);
    state.SatLat = Snapped(latitude, 0, 180);
}

} // namespace

void SatControl(Simulation& sim)
{
    SimState& state = sim.state;
    state.ArgpDeg = Number(sim, txtARGP);
    const double distance = DistanceNow(state);
    WorkOutMotion(state, distance);
    SetInterval(sim, tmrSat, kMillisecondsPerSecond * state.SecPerDeg);
    ShowMotion(sim, distance);
    PlaceMarker(sim, ProjectSatellite(sim, distance));
    WorkOutPlace(state);
    ShowPosition(sim);
    if (SatelliteFlies(state.OrbitMode)) RotatingPlanet(sim);
}

void tmrSat_Timer(Simulation& sim)
{
    SimState& state = sim.state;
    state.SatDeg += 1;
    if (state.SatDeg >= 360) state.SatDeg = 0;
    SatControl(sim);
}

void btnPlay_Click(Simulation& sim)
{
    SimState& state = sim.state;
    const bool flies = SatelliteFlies(state.OrbitMode);
    state.SatDir = 1;
    Enable(sim, tmrSat, flies);
    ShowMarker(sim, flies);
    if (state.OrbitMode == Scenario::ES2) Enable(sim, tmrES2, true);
    if (state.OrbitMode == Scenario::SunSynch) Enable(sim, tmrSunSynch, true);
    if (IsShown(sim, btnPlay)) {
        Show(sim, btnPlay, false);
        Show(sim, btnPause, true);
    }
}

void btnPause_Click(Simulation& sim)
{
    Enable(sim, tmrSat, false);
    if (sim.state.OrbitMode == Scenario::ES2) Enable(sim, tmrES2, false);
    if (sim.state.OrbitMode == Scenario::SunSynch) Enable(sim, tmrSunSynch, false);
    if (IsShown(sim, btnPause)) {
        Show(sim, btnPause, false);
        Show(sim, btnPlay, true);
    }
}

} // namespace selvane
