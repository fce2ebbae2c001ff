#include "scene/ring.h"

#include "app/picture.h"

#include <cmath>
#include <cstddef>

namespace selvane {

namespace {

const double kPi = 4 * std::atan(1.0); // as the state has it

template <typename Angle> InPlaneAngles MakeAngles(Angle angle)
{
    InPlaneAngles angles{};
    for (std::size_t at = 0; at < angles.size(); ++at) {
        const double radians = angle(at);
        angles[at] = {radians, std::cos(radians), std::sin(radians)};
    }
    return angles;
}

} // namespace

const InPlaneAngles kWholeDegrees =
    MakeAngles([](std::size_t degree) { return static_cast<double>(degree) * kPi / 180; });

const InPlaneAngles kRunningSum = MakeAngles([sum = 0.0](std::size_t) mutable {
    const double radians = sum;
    sum += kPi / 180;
    return radians;
});

Projected PlotNearHalf(Picture& picture, const InPlaneAngles& angles, const RingPlace& ring,
                       Centre centre)
{
    const Projection project(ring.turn);
    for (const InPlaneAngle& angle : angles) {
        if (project.IsSurelyBehind(ring.radius, angle.cosine, angle.sine)) continue;
        const Projected point = project(ring.radius, angle.cosine, angle.sine);
        if (point.z > 0) picture.PSet(point.x + centre.x, point.y + centre.y);
    }
    return project(ring.radius, angles.back().cosine, angles.back().sine);
}

} // namespace selvane
