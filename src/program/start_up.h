// The moments of the main window's life, and the choice of a planet.
#pragma once

#include "app/control_ids.h"

namespace selvane {

struct Simulation;

// Earth, the first steps of the tutorials, the first document. Draws nothing.
void Form_Load(Simulation& sim);

// Runs each time the main window becomes the program's active window: the reference-frames tutorial
// toggles, and the default scenario starts.
void Form_Activate(Simulation& sim);

// Closing the main window closes the about box, then the user guide.
void Form_Unload(Simulation& sim);

// A click on a planet's item. The checked one only loses its check mark; another one selects the
// planet and resets the orbit.
void ClickPlanet(Simulation& sim, MenuId item);

} // namespace selvane
