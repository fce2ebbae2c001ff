// What the rasterisers share: whole pixels from coordinates, runs of pixels, and mixing. Inline,
// as a frame asks for them some thousand times.
#pragma once

#include "raster/raster.h"

#include <algorithm>

namespace selvane::raster {

// The whole number at or below a coordinate of any size.
inline int WholeBelow(double coordinate)
{
    constexpr double kFarOutside = 1e8;
    const double bounded = std::clamp(coordinate, -kFarOutside, kFarOutside);
    const int towardsZero = static_cast<int>(bounded);
    return towardsZero - (towardsZero > bounded ? 1 : 0);
}

inline int NearestWhole(double coordinate)
{
    return WholeBelow(coordinate + 0.5);
}

inline Run Common(Run one, Run other)
{
    return {std::max(one.first, other.first), std::min(one.end, other.end)};
}

inline Box Common(const Box& one, const Box& other)
{
    return {Common(one.across, other.across), Common(one.down, other.down)};
}

// The smallest box round both; an empty one counts for nothing.
inline Box Around(const Box& one, const Box& other)
{
    if (one.IsEmpty()) return other;
    if (other.IsEmpty()) return one;
    const auto around = [](Run a, Run b) {
        return Run{std::min(a.first, b.first), std::max(a.end, b.end)};
    };
    return {around(one.across, other.across), around(one.down, other.down)};
}

// The square about a centre, moved to the nearest whole pixels.
inline Box SquareAt(DevicePoint centre, int side)
{
    const int left = NearestWhole(centre.x - side / 2.0);
    const int top = NearestWhole(centre.y - side / 2.0);
    return {{left, left + side}, {top, top + side}};
}

// The pixels whose centres lie from `low` to `high`, both included.
inline Run CentresWithin(double low, double high)
{
    return {-WholeBelow(0.5 - low), WholeBelow(high - 0.5) + 1};
}

inline void FillRun(Pixel* row, Run run, Pixel pixel)
{
    if (!run.IsEmpty()) std::fill(row + run.first, row + run.end, pixel);
}

// The weight of a colour that replaces what is below; 0 leaves that.
inline constexpr std::uint32_t kWhole = 256;

inline Pixel Mix(Pixel below, Pixel above, std::uint32_t weight)
{
    constexpr Pixel kRedAndBlue = 0x00ff00ffU, kGreen = 0x0000ff00U;
    const std::uint32_t rest = kWhole - weight;
    const Pixel redBlue = ((below & kRedAndBlue) * rest + (above & kRedAndBlue) * weight) >> 8;
    const Pixel green = ((below & kGreen) * rest + (above & kGreen) * weight) >> 8;
    return 0xff000000U | (redBlue & kRedAndBlue) | (green & kGreen);
}

// A coverage of 0 or less leaves the pixel, 1 or more replaces it.
inline void Blend(Pixel& below, Pixel above, double coverage)
{
    const double weight = std::clamp(coverage, 0.0, 1.0) * kWhole;
    below = Mix(below, above, static_cast<std::uint32_t>(weight));
}

} // namespace selvane::raster
