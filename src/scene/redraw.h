// The road from a changed input to the picture.
#pragma once

namespace selvane {

struct Simulation;

// Clears the main picture and paints the scene of the active scenario and the orbit over it. Where
// the planet turns, its scene holds the orbit already, so that it is drawn twice and the planet
// turns by a step. Leaves SatDeg at 361.
void RedrawScene(Simulation& sim);

// The same, but nothing while a row of assignments holds redraws back.
void RedrawIfEnabled(Simulation& sim);

} // namespace selvane
