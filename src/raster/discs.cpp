// Discs, sectors, rings and arcs, row by row. Places count from the centre, y upward.
#include "raster/raster.h"
#include "raster/spans.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace selvane::raster {

namespace {

// Of a smoothed edge: half a pixel inside it all is covered, half a pixel outside it nothing.
constexpr double kSoft = 0.5;

// A stretch of a row; empty where high < low.
struct Stretch
{
    double low, high;
};

constexpr Stretch kNothing{1, -1};

Stretch Chord(double radius, double y)
{
    const double square = radius * radius - y * y;
    if (radius < 0 || square < 0) return kNothing;
    const double half = std::sqrt(square);
    return {-half, half};
}

// One side of a line through the centre. (across, up) is of length 1 and points inside.
struct Side
{
    double across, up;

    double DistanceInside(double x, double y) const { return across * x + up * y; }

    // What of a stretch of the row lies at least so far inside.
    Stretch Cut(Stretch x, double y, double distance) const
    {
        constexpr double kLevel = 1e-12;
        if (std::fabs(across) < kLevel) return up * y >= distance ? x : kNothing;
        const double bound = (distance - up * y) / across;
        return across > 0 ? Stretch{std::max(x.low, bound), x.high}
                          : Stretch{x.low, std::min(x.high, bound)};
    }
};

Side AfterStart(const Wedge& wedge)
{
    return {-std::sin(wedge.start), std::cos(wedge.start)};
}
Side BeforeEnd(const Wedge& wedge)
{
    return {std::sin(wedge.end), -std::cos(wedge.end)};
}

// Above 0, up to a full turn; 0 only where both angles are the same number.
double Span(const Wedge& wedge)
{
    constexpr double kTurn = 2 * std::numbers::pi;
    if (wedge.start == wedge.end) return 0;
    const double span = std::fmod(wedge.end - wedge.start, kTurn);
    return span > 0 ? span : span + kTurn;
}

// `DistanceInside` is how far inside the nearest edge a place lies, below 0 outside; `Inset` the
// stretch of a row that lies at least so far inside.
struct Disc
{
    double radius;

    double DistanceInside(double x, double y) const { return radius - std::sqrt(x * x + y * y); }
    Stretch Inset(double y, double distance) const { return Chord(radius - distance, y); }
};

// Of at most half a turn, so that it has one stretch in each row.
struct Sector
{
    Disc disc;
    Side afterStart, beforeEnd;
    double grow;

    double DistanceInside(double x, double y) const
    {
        const double fromSides =
            std::min(afterStart.DistanceInside(x, y), beforeEnd.DistanceInside(x, y));
        return std::min(disc.DistanceInside(x, y), fromSides + grow);
    }
    Stretch Inset(double y, double distance) const
    {
        const Stretch x = afterStart.Cut(disc.Inset(y, distance), y, distance - grow);
        return beforeEnd.Cut(x, y, distance - grow);
    }
};

struct Edge
{
    Pixel* row;
    double centreX, y;
    Pixel pixel;
};

template <typename Shape> void Soften(const Shape& shape, const Edge& edge, int from, int end)
{
    for (int at = from; at < end; ++at)
        Blend(edge.row[at], edge.pixel,
              shape.DistanceInside(at + 0.5 - edge.centreX, edge.y) + kSoft);
}

template <typename Shape>
void FillRow(const Canvas& canvas, const Shape& shape, DevicePoint centre, int row, Pixel pixel)
{
    const double y = centre.y - (row + 0.5);
    const auto pixelsOf = [&](const Stretch& x) {
        return Common(CentresWithin(centre.x + x.low, centre.x + x.high), canvas.clip.across);
    };
    const Run any = pixelsOf(shape.Inset(y, -kSoft));
    if (any.IsEmpty()) return;
    Run whole = pixelsOf(shape.Inset(y, kSoft));
    if (whole.IsEmpty()) whole = {any.end, any.end};
    const Edge edge{canvas.Row(row), centre.x, y, pixel};
    Soften(shape, edge, any.first, whole.first);
    FillRun(edge.row, whole, pixel);
    Soften(shape, edge, whole.end, any.end);
}

Run RowsOf(const Canvas& canvas, DevicePoint centre, double reach)
{
    return Common(CentresWithin(centre.y - reach, centre.y + reach), canvas.clip.down);
}

template <typename Shape>
void FillRows(const Canvas& canvas, const Shape& shape, DevicePoint centre, double radius,
              Pixel pixel)
{
    const Run rows = RowsOf(canvas, centre, radius + kSoft);
    for (int row = rows.first; row < rows.end; ++row) FillRow(canvas, shape, centre, row, pixel);
}

// Calls `take(row, run)` for each run of pixels on the ring, left and right of the centre.
template <typename Take>
void ForEachRun(const Canvas& canvas, DevicePoint centre, double radius, double thickness,
                Take take)
{
    constexpr double kRounding = 1e-6; // neighbours share their border whatever the rounding
    const double outer = radius + thickness / 2 + kRounding;
    const double inner = radius - thickness / 2 - kRounding;
    const Run rows = RowsOf(canvas, centre, outer);
    for (int row = rows.first; row < rows.end; ++row) {
        const double y = centre.y - (row + 0.5);
        const Stretch all = Chord(outer, y);
        const Stretch hollow = Chord(inner, y);
        const auto pixelsOf = [&](double low, double high) {
            return Common(CentresWithin(centre.x + low, centre.x + high), canvas.clip.across);
        };
        if (hollow.high < hollow.low) {
            take(row, pixelsOf(all.low, all.high));
        } else {
            take(row, pixelsOf(all.low, hollow.low));
            take(row, pixelsOf(hollow.high, all.high));
        }
    }
}

} // namespace

void FillDisc(const Canvas& canvas, DevicePoint centre, double radius, Pixel pixel)
{
    FillRows(canvas, Disc{radius}, centre, radius, pixel);
}

void FillSector(const Canvas& canvas, DevicePoint centre, double radius, Wedge wedge, double grow,
                Pixel pixel)
{
    const double span = Span(wedge);
    if (span > std::numbers::pi + 1e-9) {
        const double middle = wedge.start + span / 2;
        FillSector(canvas, centre, radius, {wedge.start, middle}, grow, pixel);
        FillSector(canvas, centre, radius, {middle, middle + span / 2}, grow, pixel);
        return;
    }
    const Sector sector{{radius}, AfterStart(wedge), BeforeEnd(wedge), grow};
    FillRows(canvas, sector, centre, radius, pixel);
}

void DrawRing(const Canvas& canvas, DevicePoint centre, double radius, double thickness,
              Pixel pixel)
{
    ForEachRun(canvas, centre, radius, thickness,
               [&](int row, Run run) { FillRun(canvas.Row(row), run, pixel); });
}

void DrawArc(const Canvas& canvas, DevicePoint centre, double radius, double thickness, Wedge wedge,
             Pixel pixel)
{
    const bool wide = Span(wedge) > std::numbers::pi;
    const Side afterStart = AfterStart(wedge);
    const Side beforeEnd = BeforeEnd(wedge);
    const double reach = -thickness / 2;
    ForEachRun(canvas, centre, radius, thickness, [&](int row, Run run) {
        const double y = centre.y - (row + 0.5);
        for (int at = run.first; at < run.end; ++at) {
            const double x = at + 0.5 - centre.x;
            const bool first = afterStart.DistanceInside(x, y) >= reach;
            const bool second = beforeEnd.DistanceInside(x, y) >= reach;
            if (wide ? first || second : first && second) canvas.Row(row)[at] = pixel;
        }
    });
}

} // namespace selvane::raster
