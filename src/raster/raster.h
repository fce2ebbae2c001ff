// Raster: draws into a canvas of 32-bit pixels, in device pixels. x grows to the right, y downward;
// pixel (i, j) covers i to i + 1 and j to j + 1.
#pragma once

#include "raster/colour.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace selvane::raster {

using Pixel = std::uint32_t; // 0xffRRGGBB

constexpr Pixel PixelOf(Colour colour)
{
    return 0xff000000U | static_cast<Pixel>(colour.red) << 16 |
           static_cast<Pixel>(colour.green) << 8 | static_cast<Pixel>(colour.blue);
}

// Pixels from `first` up to, not including, `end`.
struct Run
{
    int first, end;

    bool IsEmpty() const { return first >= end; }
    bool operator==(const Run&) const = default;
};

// Empty where either run is.
struct Box
{
    Run across, down;

    bool IsEmpty() const { return across.IsEmpty() || down.IsEmpty(); }
    bool operator==(const Box&) const = default;
};

// A view of pixels that someone else holds, row upon row. Only those within `clip`, which lies
// within the canvas, are drawn on; each becomes what it would be without the clipping.
struct Canvas
{
    Pixel* pixels;
    int width, height;
    Box clip{{0, width}, {0, height}};

    Pixel* Row(int y) const
    {
        return pixels + static_cast<std::ptrdiff_t>(y) * static_cast<std::ptrdiff_t>(width);
    }
};

struct DevicePoint
{
    double x, y;

    bool operator==(const DevicePoint&) const = default;
};

// The part of a disc from one ray to the other, radians, counter-clockwise on the screen from the
// +x axis. Angles of equal place but unequal number are a whole turn apart.
struct Wedge
{
    double start, end;
};

void FillBox(const Canvas& canvas, const Box& box, Pixel pixel);

// Both ends are part of it. Level and upright lines are crisp, all others smoothed.
void DrawLine(const Canvas& canvas, DevicePoint from, DevicePoint to, double thickness,
              Pixel pixel);

// Discs and sectors have a smoothed edge. Two sectors that meet show no seam where each is half a
// pixel or more larger than its angles say: that is what `grow` adds on every side.
void FillDisc(const Canvas& canvas, DevicePoint centre, double radius, Pixel pixel);
void FillSector(const Canvas& canvas, DevicePoint centre, double radius, Wedge wedge, double grow,
                Pixel pixel);

// The pixels whose centre lies within half the thickness of the circle: circles that stand one
// thickness apart leave no hole between them. An arc is that part of it.
void DrawRing(const Canvas& canvas, DevicePoint centre, double radius, double thickness,
              Pixel pixel);
void DrawArc(const Canvas& canvas, DevicePoint centre, double radius, double thickness, Wedge wedge,
             Pixel pixel);

// Coverages of 0 to 255, row upon row.
struct Mask
{
    std::span<const std::uint8_t> coverage;
    int width = 0, height = 0;
};

void DrawMask(const Canvas& canvas, int left, int top, const Mask& mask, Pixel pixel);

} // namespace selvane::raster
