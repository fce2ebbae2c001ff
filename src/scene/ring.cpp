#include "scene/ring.h"

#include <cmath>
#include <cstddef>

namespace selvane {

namespace {

template <typename Angle> InPlaneAngles MakeAngles(Angle angle)
{
    InPlaneAngles angles{};
    for (std::size_t at = 0; at < angles.size(); ++at) {
        const double radians = angle(at);
        angles[at] = {radians, std::cos(radians), std::sin(radians)};
    }
    return angles;
}

double PiOfTheState()
{
    return 4 * std::atan(1.0);
}

} // namespace

const InPlaneAngles& WholeDegrees()
{
    static const InPlaneAngles angles = MakeAngles(
        [](std::size_t degree) { return static_cast<double>(degree) * PiOfTheState() / 180; });
    return angles;
}

const InPlaneAngles& RunningSum()
{
    static const InPlaneAngles angles = MakeAngles([sum = 0.0](std::size_t) mutable {
        const double radians = sum;
        sum += PiOfTheState() / 180;
        return radians;
    });
    return angles;
}

Ring MakeRing(const InPlaneAngles& angles, double radius, Turn turn)
{
    const Projection project(turn);
    Ring ring;
    for (std::size_t at = 0; at < ring.size(); ++at)
        ring[at] = project(radius, angles[at].cosine, angles[at].sine);
    return ring;
}

} // namespace selvane
