// What is decided about a computed number never hangs on its last bits, in which the sines, cosines
// and arctangents of two machines differ: a number that comes out next to the mark at which a
// decision turns counts as that mark, as it would in exact arithmetic.
#pragma once

#include <cmath>

namespace selvane {

// In parts of the size of what is compared, such as the radius of a projected point: a million
// times what a chain of rotations loses by rounding, and a millionth of a pixel on a picture of a
// thousand.
inline constexpr double kTolerance = 1e-9;

// The mark itself where the value lies within the tolerance of it, otherwise the value. Value, mark
// and size are in one unit. A value that is no number comes back as it is.
inline double Snapped(double value, double mark, double size)
{
    return std::fabs(value - mark) <= kTolerance * size ? mark : value;
}

// The largest whole number not above the value; a value next to a whole number counts as it. What
// is compared is a fraction of 1, so that of a large value nothing more is lost than of a small
// one.
inline double SettledFloor(double value)
{
    return std::floor(Snapped(value, std::round(value), 1));
}

} // namespace selvane
