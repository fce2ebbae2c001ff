// The planet as a flat disc in two colours.
#pragma once

namespace selvane {

struct Simulation;

// The disc of the main scene and of the tutorials: night colour, with the day half turned towards
// the Sun. Reads OrbitMode, PlanetX, PlanetY, PlanetPx, PlanetLight, PlanetDark, HelioRad (0 to
// 2 Pi). Writes CurPic, and leaves the grey that the graticule starts from.
void BarePlanet(Simulation& sim);

// The shaded disc of the polar axes scene, centred on the origin of CurPic. Reads PlanetPx, whole
// display units.
void BarePlanetD(Simulation& sim);

} // namespace selvane
