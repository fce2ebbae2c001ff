#include "model/read_outs.h"

#include "app/help_pane.h"
#include "app/number_text.h"
#include "app/simulation.h"
#include "app/tolerance.h"

#include <cmath>

namespace selvane {

namespace {

void Row(Simulation& sim, int index, std::string_view name, const std::string& number,
         std::string_view unit)
{
    std::string caption(name);
    caption += number;
    caption += unit;
    SetCaption(sim, lblOutput(index), std::move(caption));
}

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
    Row(sim, 0, "Period =  ", PeriodText(state.PeriodSec), "");
    Row(sim, 1, "Eclipse = ", EclipseText(state.EclipseSec, state.PeriodSec), "");
    Row(sim, 2, "Semi-Minor Axis = ", FixedNumber(state.SMinAxis, 0), " Km");
    Row(sim, 3, "Semi-Major Axis = ", FixedNumber(state.SMajAxis, 0), " Km");
    Row(sim, 4, "Eccentricity = ", FixedNumber(state.Ecc, 3), "");
    Row(sim, 5, "Periapsis = ", FixedNumber(state.PeriAlt, 0), " Km");
    Row(sim, 6, "Apoapsis = ", FixedNumber(state.ApoAlt, 0), " Km");
    Row(sim, 7, "RAAN = ", FixedNumber(ShownNode(state), 0), " Degrees");
    Row(sim, 8, "ARGP = ", Text(sim, txtARGP), " Degrees");
}

void ShowMotion(Simulation& sim, double distance)
{
    const SimState& state = sim.state;
    Row(sim, 9, "Velocity = ", FixedNumber(state.SatVelocity, 1), " km/sec");
    Row(sim, 10, "True Anomaly = ", FixedNumber(state.TrueAnomaly, 0), " Degrees");
    Row(sim, 11, "Altitude = ", PlainNumber(SettledFloor(distance - state.PlanetRadius)), " km");
    SetCaption(sim, lblPE, "Potential = " + FixedNumber(state.PotentialEnergy, 1));
    SetCaption(sim, lblKE, "Kinetic = " + FixedNumber(state.KineticEnergy, 1));
    SetCaption(sim, lblTE, "Total = " + FixedNumber(state.TotalEnergy, 1));
}

void ShowPosition(Simulation& sim)
{
    const SimState& state = sim.state;
    Row(sim, 15, "Lon = ", FixedNumber(state.SatLon, 0), " Deg");
    Row(sim, 12, "RA = ", FixedNumber(state.SatRA, 0), " Deg");
    Row(sim, 13, "Dec = ", FixedNumber(state.SatLat, 0), " Deg");
    Row(sim, 16, "Lat = ", FixedNumber(state.SatLat, 0), " Deg");
}

void ShowDay(Simulation& sim)
{
    constexpr double kDaysPerYear = 365.24;
    const double day = SettledFloor(sim.state.HelioDeg * kDaysPerYear / 360);
    Row(sim, 10, "Day = ", PlainNumber(day), "");
}

void ResetOutputLabels(Simulation& sim)
{
    SetCaption(sim, lblPE, "Potential = N/A");
    SetCaption(sim, lblKE, "Kinetic = N/A");
    SetCaption(sim, lblTE, "Total = N/A");
    SetCaption(sim, lblOutput(9), "Velocity = N/A");
    SetCaption(sim, lblOutput(10), "True Anomaly = N/A");
    SetCaption(sim, lblOutput(11), "Altitude = N/A");
    SetCaption(sim, lblOutput(12), "RA = N/A");
    SetCaption(sim, lblOutput(13), "Dec = N/A");
    SetCaption(sim, lblOutput(14), "GMT = N/A");
    SetCaption(sim, lblOutput(15), "Lon = N/A");
    SetCaption(sim, lblOutput(16), "Lat = N/A");
}

void TellElapsedDays(Simulation& sim)
{
    SetToolTip(sim, lblOutput(10), "Elapsed days in the orbit around the sun.");
}

void mnViewSatellite_Click(Simulation& sim)
{
    const bool show = !IsChecked(sim, mnViewSatellite);
    Check(sim, mnViewSatellite, show);
    ShowMarker(sim, show);
}

void mnOrbitalEnergy_Click(Simulation& sim)
{
    const bool show = !IsChecked(sim, mnOrbitalEnergy);
    Check(sim, mnOrbitalEnergy, show);
    if (show)
        Load(sim, sim.controls.txtHelp, "Energy.rtf");
    else
        Empty(sim.controls.txtHelp);
}

} // namespace selvane
