// Geosynchronous and Molniya: prepared orbits that fly like the user's own.
#pragma once

namespace selvane {

struct Simulation;

// A click on the checked item goes back to the default orbit.
void mnGeo_Click(Simulation& sim);
void mnMoly_Click(Simulation& sim);

} // namespace selvane
