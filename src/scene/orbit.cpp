#include "scene/orbit.h"

#include "app/control_table.h"
#include "app/simulation.h"
#include "scene/orbit_elements.h"
#include "scene/orbit_values.h"
#include "scene/ring.h"

#include <cmath>
#include <cstddef>
#include <cstring>

namespace selvane {

namespace {

OrbitReading ReadShape(const Simulation& sim)
{
    const double planetRadius = sim.state.PlanetRadius;
    switch (sim.state.ShapeInput) {
    case ShapePair::Axis:
        return FromAxes(StrictNumber(sim, txtSMajAxis), StrictNumber(sim, txtSMinAxis),
                        planetRadius);
    case ShapePair::Apsis:
        return FromApsides(Number(sim, txtPeri), Number(sim, txtApo), planetRadius);
    case ShapePair::E:
    case ShapePair::None:
        break;
    }
    return FromEccentricity(Number(sim, txtPeriE), Number(sim, txtE), planetRadius);
}

void MarkFields(Simulation& sim, std::string_view fault)
{
    for (const ShapePairRow& row : ShapePairTable())
        for (const FieldId field : row.fields)
            SetFault(sim, field, row.pair == sim.state.ShapeInput ? fault : std::string_view());
}

void DeriveElements(Simulation& sim)
{
    const OrbitReading reading = ReadShape(sim);
    MarkFields(sim, reading.fault);
    if (!reading.elements) return;
    SimState& state = sim.state;
    state.SMajAxis = reading.elements->semiMajor;
    state.SMinAxis = reading.elements->semiMinor;
    state.Focus = reading.elements->focus;
    state.Ecc = reading.elements->eccentricity;
    state.PeriAlt = reading.elements->periapsis;
    state.ApoAlt = reading.elements->apoapsis;
}

void DerivePeriodAndScale(SimState& state)
{
    state.PeriodSec = Period(state.PlanetMu, state.SMajAxis, state.Pi);
    state.PeriodHours = state.PeriodSec / 3600;
    state.SMajAxisPx = state.SMajAxis * state.KmScale;
    state.FocusPx = state.Focus * state.KmScale;
    state.PlanetPx = state.PlanetRadius * state.KmScale;
}

// The picture's x-y plane is not the equator: the equator lies tilted against it, so that an orbit
// of inclination 0 with node 0 falls on the equator's ring.
void ReadOrientation(Simulation& sim)
{
    SimState& state = sim.state;
    state.Incl = Number(sim, txtIncl);
    state.RAAN = Number(sim, txtRot);
    state.PosRoll = Radians(state, state.RAAN);
    if (state.OrbitMode == Scenario::SunSynch) state.PosRoll = state.HelioRad + state.PosRoll;
    state.Incl = state.Incl - state.PlanetTilt * std::cos(state.PosRoll);
    state.PosLon = Radians(state, state.Incl);
    LoadNegativeView(sim);
    state.ARGP = Number(sim, txtARGP) + 90;
}

OrbitPath PathOf(const OrbitPlace& place)
{
    OrbitPath path{place};
    const Projection project(place.turn);
    for (std::size_t at = 0; at < path.samples.size(); ++at) {
        const InPlaneAngle& angle = kWholeDegrees[at];
        const double radius =
            RadiusAt(place.semiMajor, place.eccentricity, angle.radians - place.farthest);
        const Projected point = project(radius, angle.cosine, angle.sine);
        path.samples[at] = {radius, point, IsInShadow(point, place.planetRadius)};
    }
    return path;
}

// Computed only where the orbit lies elsewhere than at the last time, by the last bit: the sign of
// a zero counts.
const OrbitPath& PresentPath(Simulation& sim)
{
    const SimState& state = sim.state;
    const OrbitPlace place{state.SMajAxisPx,
                           state.Ecc,
                           Radians(state, state.ARGP),
                           {state.PosLon, state.PosRoll, state.ViewRad},
                           state.PlanetPx};
    if (std::memcmp(&sim.orbitPath.place, &place, sizeof place) != 0) sim.orbitPath = PathOf(place);
    return sim.orbitPath;
}

void Plot(Simulation& sim)
{
    const SimState& state = sim.state;
    Picture& picture = sim.picSelvane;
    for (const auto& [radius, point, inShadow] : PresentPath(sim).samples) {
        picture.ForeColor = inShadow ? RGB(127, 127, 127) : kWhite;
        if (IsInSight(point, state.PlanetPx))
            picture.PSet(point.x + state.PlanetX, point.y + state.PlanetY);
    }
}

// Turns the orbit back by the planet's angle round the Sun, so that the Sun's direction lies on
// the -x side again for the shadow.
void ReferToTheSun(SimState& state)
{
    if (state.OrbitMode == Scenario::ES2) state.RAAN = state.RAAN - state.HelioDeg;
    if (IsSunCentred(state.OrbitMode)) state.PosRoll = Radians(state, state.RAAN);
}

// The satellite's rate at that distance, display units.
void SetRate(SimState& state, double radius)
{
    const double rate = AngularRate(state.PlanetMu, radius / state.KmScale, state.SMajAxis);
    state.AngRate = rate * 180 / state.Pi;
    state.SecPerDeg = 1 / state.AngRate;
}

// The rate stays as at the last sample.
void SumEclipse(SimState& state, const OrbitPath& path)
{
    state.EclipseSec = 0;
    for (const auto& [radius, point, inShadow] : path.samples) {
        if (!inShadow) continue;
        SetRate(state, radius);
        state.EclipseSec += state.SecPerDeg;
    }
    SetRate(state, path.samples.back().radius);
}

// What the loops leave behind: the last sample is the projection's present point.
void LeaveLastSample(SimState& state, const OrbitSample& last)
{
    state.PosLat = kWholeDegrees.back().radians;
    state.PosRadius = last.radius;
    StoreProjected(state, last.point);
    state.SatDeg = kRingPoints;
}

} // namespace

void DrawOrbit(Simulation& sim)
{
    SimState& state = sim.state;
    DeriveElements(sim);
    DerivePeriodAndScale(state);
    ReadOrientation(sim);
    Plot(sim);
    ReferToTheSun(state);
    const OrbitPath& path = PresentPath(sim);
    SumEclipse(state, path);
    LeaveLastSample(state, path.samples.back());
    PrintValues(sim);
}

} // namespace selvane
