// The planet from straight above its north pole, with the axes of the planet-centred frame.
#pragma once

namespace selvane {

struct Simulation;

// Step 21, on picDemo. Has no view angle and looks the same on every planet. Works on the main
// picture's own fields: it leaves CurPic, PlanetPx 60, PlanetX, PlanetY, SunX, SunY, ViewDeg and
// ViewRad behind, which the next draw of the main picture sets anew.
void Demo1(Simulation& sim);

} // namespace selvane
