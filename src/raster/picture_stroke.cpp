#include "raster/picture_stroke.h"

#include <algorithm>
#include <cmath>

namespace selvane {

namespace {

using Kind = PictureStroke::Kind;

DevicePoint Scaled(DevicePoint place, double scale)
{
    return {place.x * scale, place.y * scale};
}

// What lies between two places and so far beyond them.
Box Between(DevicePoint from, DevicePoint to, double reach)
{
    const auto run = [reach](double one, double other) {
        const auto [low, high] = std::minmax(one, other);
        return Run{WholeBelow(low - reach), WholeBelow(high + reach) + 1};
    };
    return {run(from.x, to.x), run(from.y, to.y)};
}

// An outline is one pixel of the picture wide, half of it on either side of the edge.
void DrawCircle(const Canvas& canvas, const PictureStroke& stroke, double scale)
{
    const DevicePoint centre = Scaled(stroke.at, scale);
    const double radius = stroke.radius * scale;
    if (!stroke.filling) {
        DrawRing(canvas, centre, radius, scale, stroke.pixel);
        return;
    }
    FillDisc(canvas, centre, radius + scale / 2, stroke.pixel);
    if (stroke.filling != stroke.pixel)
        FillDisc(canvas, centre, radius - scale / 2, *stroke.filling);
}

void DrawArc(const Canvas& canvas, const PictureStroke& stroke, double scale)
{
    const DevicePoint centre = Scaled(stroke.at, scale);
    const double radius = stroke.radius * scale;
    DrawArc(canvas, centre, radius, scale, {std::fabs(stroke.start), std::fabs(stroke.end)},
            stroke.pixel);
    for (const double angle : {stroke.start, stroke.end}) {
        if (!(angle < 0)) continue;
        const DevicePoint rim{centre.x + radius * std::cos(-angle),
                              centre.y - radius * std::sin(-angle)};
        DrawLine(canvas, centre, rim, scale, stroke.pixel);
    }
}

void DrawSector(const Canvas& canvas, const PictureStroke& stroke, double scale)
{
    const DevicePoint centre = Scaled(stroke.at, scale);
    const double radius = stroke.radius * scale;
    const double half = scale / 2;
    const Wedge wedge{-stroke.start, -stroke.end};
    FillSector(canvas, centre, radius + half, wedge, half, stroke.pixel);
    if (stroke.filling && stroke.filling != stroke.pixel)
        FillSector(canvas, centre, radius - half, wedge, -half, *stroke.filling);
}

} // namespace

Box BoxOf(const PictureStroke& stroke, double scale)
{
    const DevicePoint at = Scaled(stroke.at, scale);
    const double edge = scale + 1; // of a line or an outline, with what smoothing adds
    switch (stroke.kind) {
    case Kind::Dot:
        return SquareAt(at, scale < 1.5 ? 1 : NearestWhole(scale));
    case Kind::Line:
        return Between(at, Scaled(stroke.to, scale), edge);
    case Kind::Circle:
    case Kind::Arc:
    case Kind::Sector:
        return Between(at, at, stroke.radius * scale + edge);
    case Kind::Text:
        break;
    }
    return {};
}

void Draw(const Canvas& canvas, const PictureStroke& stroke, double scale, const Box& box)
{
    switch (stroke.kind) {
    case Kind::Dot:
        FillBox(canvas, box, stroke.pixel);
        break;
    case Kind::Line:
        DrawLine(canvas, Scaled(stroke.at, scale), Scaled(stroke.to, scale), scale, stroke.pixel);
        break;
    case Kind::Circle:
        DrawCircle(canvas, stroke, scale);
        break;
    case Kind::Arc:
        DrawArc(canvas, stroke, scale);
        break;
    case Kind::Sector:
        DrawSector(canvas, stroke, scale);
        break;
    case Kind::Text:
        break;
    }
}

} // namespace selvane
