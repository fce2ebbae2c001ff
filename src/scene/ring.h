// A ring: a circle of 361 projected points, a point a degree, the last one the first once more, of
// which only the near half is drawn. What a ring repeats is worked out once: the sines and cosines
// of its angles, and all of it while it keeps its place.
#pragma once

#include "scene/projection.h"

#include <array>
#include <cstddef>

namespace selvane {

class DrawingSurface;

inline constexpr int kRingPoints = 361;

struct InPlaneAngle
{
    double radians, cosine, sine;
};
using InPlaneAngles = std::array<InPlaneAngle, kRingPoints>;

// Each whole degree times Pi / 180.
const InPlaneAngles& WholeDegrees();

// The running sum of Pi / 180 from 0; differs from the above in its last digits.
const InPlaneAngles& RunningSum();

struct RingPlace
{
    double radius; // display units
    Turn turn;

    bool operator==(const RingPlace&) const = default;
};

struct RingDot
{
    double x, y; // from the ring's centre
};

struct Ring
{
    std::array<RingDot, kRingPoints> dots; // those with z > 0, in their order
    std::size_t count = 0;
    Projected last; // the point at the full turn
};

void MakeRing(const InPlaneAngles& angles, const RingPlace& place, Ring& ring);

// The dots of the ring's near half round a centre, in the picture's ForeColor.
void PlotNearHalf(DrawingSurface& picture, const Ring& ring, double centreX, double centreY);

// Remembers the last result of a pure computation: while the inputs stay to the last bit, so does
// the result.
template <typename Key, typename Value> class Remembered
{
public:
    template <typename Make> const Value& operator()(const Key& key, Make make)
    {
        if (!known_ || !(key == key_)) {
            make(key, value_);
            key_ = key;
            known_ = true;
        }
        return value_;
    }

private:
    Key key_{};
    Value value_{};
    bool known_ = false;
};

using RememberedRing = Remembered<RingPlace, Ring>;

} // namespace selvane
