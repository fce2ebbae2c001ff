#include "raster/raster.h"

#include "raster/spans.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace selvane::raster {

namespace {

struct Segment
{
    DevicePoint from, to;
};

// Narrows the stretch [first, last] of a segment to where start + slope * t lies within 0 to limit.
bool Narrow(double start, double slope, double limit, double& first, double& last)
{
    if (slope == 0) return start >= 0 && start <= limit;
    double enter = -start / slope;
    double leave = (limit - start) / slope;
    if (enter > leave) std::swap(enter, leave);
    first = std::max(first, enter);
    last = std::min(last, leave);
    return first <= last;
}

// The part of a segment on the canvas or within a margin of it.
std::optional<Segment> Visible(const Canvas& canvas, const Segment& line, double margin)
{
    const double acrossBy = line.to.x - line.from.x;
    const double downBy = line.to.y - line.from.y;
    double first = 0;
    double last = 1;
    if (!Narrow(line.from.x + margin, acrossBy, canvas.width + 2 * margin, first, last) ||
        !Narrow(line.from.y + margin, downBy, canvas.height + 2 * margin, first, last))
        return std::nullopt;
    return Segment{{line.from.x + first * acrossBy, line.from.y + first * downBy},
                   {line.from.x + last * acrossBy, line.from.y + last * downBy}};
}

Run Thick(double low, double high, int thickness)
{
    const double half = thickness / 2.0;
    return {NearestWhole(low - half), NearestWhole(high - half) + thickness};
}

// Runs along the longer direction and covers, in the other, what the thickness takes.
template <typename PixelAt>
void SmoothLine(DevicePoint from, DevicePoint to, double thickness, Pixel pixel, PixelAt pixelAt)
{
    if (from.x > to.x) std::swap(from, to);
    const double slope = (to.y - from.y) / (to.x - from.x);
    const double half = thickness / 2 * std::sqrt(1 + slope * slope);
    for (int along = WholeBelow(from.x); along <= WholeBelow(to.x); ++along) {
        const double middle = from.y + slope * (along + 0.5 - from.x);
        for (int over = WholeBelow(middle - half); over <= WholeBelow(middle + half); ++over) {
            const double covered =
                std::min(middle + half, over + 1.0) - std::max(middle - half, over * 1.0);
            if (Pixel* const below = pixelAt(along, over)) Blend(*below, pixel, covered);
        }
    }
}

} // namespace

void FillBox(const Canvas& canvas, const Box& box, Pixel pixel)
{
    const auto [across, down] = Common(box, canvas.clip);
    for (int y = down.first; y < down.end; ++y) {
        Pixel* const row = canvas.Row(y);
        for (int x = across.first; x < across.end; ++x) row[x] = pixel;
    }
}

void DrawLine(const Canvas& canvas, DevicePoint from, DevicePoint to, double thickness, Pixel pixel)
{
    const auto [left, right] = std::minmax(from.x, to.x);
    const auto [top, bottom] = std::minmax(from.y, to.y);
    constexpr double kStraight = 1e-6;
    if (right - left < kStraight || bottom - top < kStraight) {
        const int side = std::max(1, NearestWhole(thickness));
        FillBox(canvas, {Thick(left, right, side), Thick(top, bottom, side)}, pixel);
        return;
    }
    const std::optional<Segment> line = Visible(canvas, {from, to}, thickness + 1);
    if (!line) return;
    const auto at = [&canvas](int x, int y) -> Pixel* {
        const auto& [across, down] = canvas.clip;
        const bool outside = x < across.first || y < down.first || x >= across.end || y >= down.end;
        return outside ? nullptr : canvas.Row(y) + x;
    };
    if (right - left >= bottom - top) // the same of the part that is seen
        SmoothLine(line->from, line->to, thickness, pixel, at);
    else
        SmoothLine({line->from.y, line->from.x}, {line->to.y, line->to.x}, thickness, pixel,
                   [&at](int along, int over) { return at(over, along); });
}

void DrawMask(const Canvas& canvas, int left, int top, const Mask& mask, Pixel pixel)
{
    const Run across = Common({left, left + mask.width}, canvas.clip.across);
    const Run down = Common({top, top + mask.height}, canvas.clip.down);
    for (int y = down.first; y < down.end; ++y) {
        const std::uint8_t* const row = mask.coverage.data() + (y - top) * mask.width - left;
        for (int x = across.first; x < across.end; ++x) {
            Pixel& below = canvas.Row(y)[x];
            below = Mix(below, pixel, row[x] + (row[x] >> 7)); // 255 becomes the whole
        }
    }
}

} // namespace selvane::raster
