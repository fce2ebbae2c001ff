// The read-outs that describe the satellite at this moment: rows 9 to 13, 15 and 16 of lblOutput
// and the energies. Where the planet travels round the Sun, row 10 counts the days instead.
#pragma once

namespace selvane {

struct Simulation;

// Speed, true anomaly, altitude and energies; distance in km from the planet's centre.
void ShowMotion(Simulation& sim, double distance);

// Right ascension, declination, longitude and latitude.
void ShowPosition(Simulation& sim);

// Row 10 as day counter of the planet's year round the Sun.
void ShowDay(Simulation& sim);

// "N/A" for every row of a satellite, in the scenarios that have none.
void ResetOutputLabels(Simulation& sim);

// What row 10 means from here on, as its tool tip says.
void Row10IsTrueAnomaly(Simulation& sim);
void Row10IsElapsedDays(Simulation& sim);

// The View menu.
void mnViewSatellite_Click(Simulation& sim);
void mnOrbitalEnergy_Click(Simulation& sim);

} // namespace selvane
