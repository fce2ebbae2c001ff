// The navigator of the tutorials: which tutorial is open, on which step, and what shows there. A
// step is a scene on picDemo, a document in the help pane and the controls that belong to the
// scene. The open tutorial is the checked menu item; at most one of the two is checked. The main
// simulation runs on beside it.
#pragma once

namespace selvane {

struct Simulation;

// Open a tutorial on the scene of its first step, or close the open one. The step counter keeps
// its value: the next Next or Back goes on from there. Scene and document stay after a close.
void mnSatelliteTracking_Click(Simulation& sim);
void mnTimeStandards_Click(Simulation& sim);

// Walk the open tutorial, and stay on its last or first step. Without one they clear picDemo.
void btnNext2_Click(Simulation& sim);
void btnBack2_Click(Simulation& sim);

// Stops the clock and hides the controls of the scenes.
void HideTutorialControls(Simulation& sim);

// Gives the help pane back to the tutorial.
void lblReturnToTutorial_Click(Simulation& sim);

// The view angle, kept to 0 to 90 degrees: redraws the present scene of the Reference Frames.
void sclViewD_Change(Simulation& sim);

// Days or hours, as the step says: redraws the count of days; the clock reads its offset itself.
void sclRange_Change(Simulation& sim);

} // namespace selvane
