// A ring: a circle of kRingPoints projected points, of which only the near half is drawn.
#pragma once

#include "scene/projection.h"

#include <array>

namespace selvane {

struct Picture;

struct InPlaneAngle
{
    double radians, cosine, sine;
};
using InPlaneAngles = std::array<InPlaneAngle, kRingPoints>;

// Each whole degree times Pi / 180.
extern const InPlaneAngles kWholeDegrees;

// The running sum of Pi / 180 from 0; differs from the above in its last digits.
extern const InPlaneAngles kRunningSum;

struct RingPlace
{
    double radius; // display units
    Turn turn;
};

struct Centre
{
    double x, y; // display units
};

// Plots the dots of the ring's near half, those with z > 0, in the picture's ForeColor. Returns the
// point at the full turn, from the ring's centre.
Projected PlotNearHalf(Picture& picture, const InPlaneAngles& angles, const RingPlace& ring,
                       Centre centre);

} // namespace selvane
