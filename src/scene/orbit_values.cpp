#include "scene/orbit_values.h"

#include "app/number_text.h"
#include "app/simulation.h"

namespace selvane {

namespace {

// The node as the scenario shows it: against the stars where the planet travels round the Sun.
double ShownNode(const SimState& state)
{
    return IsSunCentred(state.OrbitMode) ? state.HelioDeg + state.RAAN : state.RAAN;
}

std::string PeriodText(double seconds)
{
    return FixedNumber(seconds / 60, 0) + " Min  (" + FixedNumber(seconds / 3600, 2) + " Hr)";
}

std::string EclipseText(double seconds, double period)
{
    return FixedNumber(seconds / 60, 0) + " Min (" + FixedNumber(seconds * 100 / period, 0) + " %)";
}

} // namespace

void PrintValues(Simulation& sim)
{
    const SimState& state = sim.state;
    SetRow(sim, 0, "Period =  ", PeriodText(state.PeriodSec), "");
    SetRow(sim, 1, "Eclipse = ", EclipseText(state.EclipseSec, state.PeriodSec), "");
    SetRow(sim, 2, "Semi-Minor Axis = ", FixedNumber(state.SMinAxis, 0), " Km");
    SetRow(sim, 3, "Semi-Major Axis = ", FixedNumber(state.SMajAxis, 0), " Km");
    SetRow(sim, 4, "Eccentricity = ", FixedNumber(state.Ecc, 3), "");
    SetRow(sim, 5, "Periapsis = ", FixedNumber(state.PeriAlt, 0), " Km");
    SetRow(sim, 6, "Apoapsis = ", FixedNumber(state.ApoAlt, 0), " Km");
    SetRow(sim, 7, "RAAN = ", FixedNumber(ShownNode(state), 0), " Degrees");
    SetRow(sim, 8, "ARGP = ", Text(sim, txtARGP), " Degrees");
}

} // namespace selvane
