// A point on the sphere and the two arcs that measure its place.
#pragma once

namespace selvane {

struct Simulation;

// Steps 22 and 23, on picDemo: one figure with two sets of names. CurrentDemo chooses them: right
// ascension and declination from the vernal equinox, or under Demo3 longitude and latitude from
// the prime meridian. Reads txtViewD, not the planet. Writes CurPic and the scratch of the Demo
// projection; leaves FillStyle transparent.
void Demo2(Simulation& sim);

} // namespace selvane
