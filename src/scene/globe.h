// The scene round a planet that does not turn: that of the Sun-centred demonstrations.
#pragma once

namespace selvane {

struct Simulation;

// Paints Sun, reference lines, pole markers, disc and a fixed graticule on picSelvane, over what is
// there: the caller clears first and draws the orbit after it.
// Reads OrbitMode, PlanetPx, PlanetX, PlanetY, PlanetTilt, the number in txtView. Writes CurPic,
// SunX, SunY, ViewDeg, ViewRad, Incl, RAAN, SatDeg (361) and the projection's scratch.
void DrawPlanet(Simulation& sim);

} // namespace selvane
