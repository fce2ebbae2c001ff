// The default scenario: the satellite on the orbit that every reset goes back to.
#pragma once

namespace selvane {

struct Simulation;

// Puts the simulation into its default scenario on the planet that is selected: the bars, the
// timers, the satellite. Texts typed into the fields of bars that stand at their default stay.
void ResetOrbit(Simulation& sim);

} // namespace selvane
