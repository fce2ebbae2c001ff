// The path of an orbit on the screen, which a simulation keeps: at most ticks only the planet
// turns. Lengths in display units (planet radius 50), angles in radians.
#pragma once

#include <array>
#include <cmath>

namespace selvane {

// Turns about the three axes, applied in this order.
struct Turn
{
    double aboutY, aboutZ, aboutX;

    bool operator==(const Turn&) const = default;
};

// On the screen a coordinate next to 0 is exactly 0 (tolerance.h), so that the sign of x, y and z
// is that of exact arithmetic.
struct Projected
{
    double x, y, z;                // on the screen; z > 0: in front of the plane through the centre
    double planeX, planeY, planeZ; // before the turn about x: in the x-y plane, and over it
    double angle1, angle2;

    // From the centre on the screen, and in the x-y plane before the turn about x.
    double Dist() const { return std::sqrt(x * x + y * y); }
    double PlaneDist() const { return std::sqrt(planeX * planeX + planeY * planeY); }
};

// Where an orbit lies, apart from the planet's own place on the picture.
struct OrbitPlace
{
    double semiMajor, eccentricity; // display units, none
    double farthest;                // in-plane angle of the largest radius
    Turn turn;
    double planetRadius; // display units
};

struct OrbitSample
{
    double radius; // display units
    Projected point;
    bool inShadow;
};

// A point a degree; the last is the first once more.
inline constexpr int kRingPoints = 361;

struct OrbitPath
{
    OrbitPlace place{};
    std::array<OrbitSample, kRingPoints> samples{};
};

} // namespace selvane
