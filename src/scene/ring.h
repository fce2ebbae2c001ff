// The points of a ring: a circle of 361 projected points, a point a degree, the last one the first
// once more. What a ring repeats is worked out once: the sines and cosines of its angles, and all
// of it while it keeps its place.
#pragma once

#include "scene/projection.h"

#include <array>

namespace selvane {

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

using Ring = std::array<Projected, kRingPoints>;

Ring MakeRing(const InPlaneAngles& angles, double radius, Turn turn);

// Remembers the last result of a pure computation: while the inputs stay to the last bit, so does
// the result.
template <typename Key, typename Value> class Remembered
{
public:
    template <typename Make> const Value& operator()(const Key& key, Make make)
    {
        if (!known_ || !(key == key_)) {
            value_ = make(key);
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

struct RingPlace
{
    double radius;
    Turn turn;

    bool operator==(const RingPlace&) const = default;
};
using RememberedRing = Remembered<RingPlace, Ring>;

} // namespace selvane
