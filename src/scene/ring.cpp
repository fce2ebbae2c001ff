#include "scene/ring.h"

#include "app/drawing_surface.h"

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

void MakeRing(const InPlaneAngles& angles, const RingPlace& place, Ring& ring)
{
    const Projection project(place.turn);
    ring.count = 0;
    for (const InPlaneAngle& angle : angles) {
        if (project.IsSurelyBehind(place.radius, angle.cosine, angle.sine)) continue;
        const Projected point = project(place.radius, angle.cosine, angle.sine);
        if (point.z > 0) ring.dots[ring.count++] = {point.x, point.y};
    }
    ring.last = project(place.radius, angles.back().cosine, angles.back().sine);
}

void PlotNearHalf(DrawingSurface& picture, const Ring& ring, double centreX, double centreY)
{
    for (std::size_t at = 0; at < ring.count; ++at)
        picture.PSet(ring.dots[at].x + centreX, ring.dots[at].y + centreY);
}

} // namespace selvane
