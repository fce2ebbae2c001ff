// The one place where the orbit model is computed and the orbit is drawn.
#pragma once

namespace selvane {

struct Simulation;

// Reads the ruling pair of shape inputs and the orientation from their fields, derives every
// element, plots the orbit on picSelvane as a dot a degree, sums the time in the shadow and lets
// PrintValues show the results. Never clears the picture. Leaves SatDeg at 361.
// A ruling pair that describes no orbit leaves the elements of the last one that did, and its two
// fields carry the reason until they describe an orbit again.
void DrawOrbit(Simulation& sim);

} // namespace selvane
