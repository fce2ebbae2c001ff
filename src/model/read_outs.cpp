#include "model/read_outs.h"

#include "app/control_table.h"
#include "app/help_pane.h"
#include "app/number_text.h"
#include "app/simulation.h"
#include "app/tolerance.h"

#include <cmath>

namespace selvane {

void ShowMotion(Simulation& sim, double distance)
{
    const SimState& state = sim.state;
    SetRow(sim, 9, "Velocity = ", FixedNumber(state.SatVelocity, 1), " km/sec");
    SetRow(sim, 10, "True Anomaly = ", FixedNumber(state.TrueAnomaly, 0), " Degrees");
    SetRow(sim, 11, "Altitude = ", PlainNumber(SettledFloor(distance - state.PlanetRadius)), " km");
    SetCaption(sim, lblPE, "Potential = " + FixedNumber(state.PotentialEnergy, 1));
    SetCaption(sim, lblKE, "Kinetic = " + FixedNumber(state.KineticEnergy, 1));
    SetCaption(sim, lblTE, "Total = " + FixedNumber(state.TotalEnergy, 1));
}

void ShowPosition(Simulation& sim)
{
    const SimState& state = sim.state;
    SetRow(sim, 15, "Lon = ", FixedNumber(state.SatLon, 0), " Deg");
    SetRow(sim, 12, "RA = ", FixedNumber(state.SatRA, 0), " Deg");
    SetRow(sim, 13, "Dec = ", FixedNumber(state.SatLat, 0), " Deg");
    SetRow(sim, 16, "Lat = ", FixedNumber(state.SatLat, 0), " Deg");
}

void ShowDay(Simulation& sim)
{
    constexpr double kDaysPerYear = 365.24;
    const double day = SettledFloor(sim.state.HelioDeg * kDaysPerYear / 360);
    SetRow(sim, 10, "Day = ", PlainNumber(day), "");
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

void Row10IsTrueAnomaly(Simulation& sim)
{
    SetToolTip(sim, lblOutput(10), LabelTable()[Index(lblOutput(10))].toolTip);
}

void Row10IsElapsedDays(Simulation& sim)
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
        LoadDocument(sim, WindowId::Main, "Energy.rtf");
    else
        EmptyPane(sim, WindowId::Main);
}

} // namespace selvane
