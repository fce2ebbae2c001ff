// The read-outs that describe the orbit: rows 0 to 8 of lblOutput. They follow every redraw.
#pragma once

namespace selvane {

struct Simulation;

// Period, eclipse, axes, eccentricity, apsides, node, argument of periapsis, as DrawOrbit has left
// them in the state.
void PrintValues(Simulation& sim);

} // namespace selvane
