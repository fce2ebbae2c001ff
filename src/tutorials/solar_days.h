// Solar days against sidereal days, and what this scene shares with the clock: the Sun and the
// lines of the Earth's globe. Everything is drawn on picDemo, seen from above the plane of the
// Earth's path. Angles in radians, lengths in the picture's units.
#pragma once

#include "raster/colour.h"

#include <string>

namespace selvane {

struct Picture;
struct Simulation;

inline constexpr double kEarthRadius = 30; // the Sun's disc has the same
inline constexpr double kPathRadius = 100;
inline constexpr Colour kEarthDay{127, 127, 255};
inline constexpr Colour kEarthNight{31, 31, 159};

// Step 31: Sun, the Earth at the start of the count and the Earth after SolarDays days (0 to 365),
// with both counts as text. The text counts the number in txtRange. Reads PlanetTilt. Shows the
// range controls; leaves the scratch of the Demo projection and FillStyle solid.
void Demo31(Simulation& sim);

// The line of text for that many solar days. A year of 365.25 solar days holds 366.25 sidereal
// ones; a count too large for a number reads "N/A".
std::string DaysText(double solarDays);

// The Sun in the middle of the picture.
void SunDisc(Picture& picture);

// A filled half disc, its rim counter-clockwise from angle + Pi / 2 to angle + 3 Pi / 2: the half
// turned away from `angle`. Angle: 0 to under 2.5 Pi, not exactly 1.5 Pi. Filled with FillColor.
void EarthHalf(Simulation& sim, double x, double y, Colour outline, double angle);

// The near half of one circle of the globe about (x, y), in ForeColor. Reads PosRadius and the Demo
// angles; DemoPosLat is its counter.
void EarthNearCircle(Simulation& sim, double x, double y);

// Equator, and a meridian turned by `roll`. Both lean by PlanetTilt and are seen from above.
void EarthEquator(Simulation& sim, double x, double y);
void EarthMeridian(Simulation& sim, double x, double y, double roll);

} // namespace selvane
