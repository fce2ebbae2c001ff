// The moments of the main window's life, and the default scenario.
#pragma once

namespace selvane {

struct Simulation;

// Earth, the first steps of the tutorials, the first document. Draws nothing.
void Form_Load(Simulation& sim);

// Runs each time the main window becomes the program's active window: the reference-frames tutorial
// toggles, and the default scenario starts.
void Form_Activate(Simulation& sim);

// Closing the main window closes the about box, then the user guide.
void Form_Unload(Simulation& sim);

// Puts the simulation into its default scenario on the planet that is selected: the bars, the
// timers, the satellite. Texts typed into the fields of bars that stand at their default stay.
void ResetOrbit(Simulation& sim);

// What row 10 of the read-outs means while a satellite flies.
void TellTrueAnomaly(Simulation& sim);

} // namespace selvane
