// The scene round a planet that turns under its satellite.
#pragma once

namespace selvane {

struct Simulation;

// Clears picSelvane and paints the whole picture of the default scenario and of the geosynchronous
// and Molniya demonstrations, the orbit included. Each run turns the planet by RotPerStep x SatDir,
// whatever caused it, and writes the planet's clock into lblOutput(14). SatDeg survives.
void RotatingPlanet(Simulation& sim);

} // namespace selvane
