// The read-outs beside the picture. Rows 0 to 8 of lblOutput describe the orbit and follow every
// redraw; rows 9 to 13, 15, 16 and the energies describe the satellite at this moment.
#pragma once

namespace selvane {

struct Simulation;

// Rows 0 to 8: period, eclipse, axes, eccentricity, apsides, node, argument of periapsis.
void PrintValues(Simulation& sim);

// Speed, true anomaly, altitude and energies; distance in km from the planet's centre.
void ShowMotion(Simulation& sim, double distance);

// Right ascension, declination, longitude and latitude.
void ShowPosition(Simulation& sim);

// Row 10 as day counter of the planet's year round the Sun.
void ShowDay(Simulation& sim);

// "N/A" for every row of a satellite, in the scenarios that have none.
void ResetOutputLabels(Simulation& sim);

// Row 10 means the days of the year from here on, as its tool tip says.
void TellElapsedDays(Simulation& sim);

// The View menu.
void mnViewSatellite_Click(Simulation& sim);
void mnOrbitalEnergy_Click(Simulation& sim);

} // namespace selvane
