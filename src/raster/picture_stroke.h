// PictureStroke: one of the immediate calls that make a picture, whatever the scale of the screen.
#pragma once

#include "raster/spans.h"

#include <optional>
#include <string>

namespace selvane {

// All that decides a stroke's pixels, but for the scale of the screen: places and lengths are
// pixels of the picture, y downward; angles as in DrawingSurface.
struct PictureStroke
{
    enum class Kind { Dot, Line, Circle, Arc, Sector, Text };

    Kind kind;
    Pixel pixel; // of dots, lines, outlines and text
    DevicePoint at;
    DevicePoint to{};               // of a line
    double radius = 0;              // of round ones
    double start = 0, end = 0;      // of arcs and sectors
    std::optional<Pixel> filling{}; // of circles and sectors
    std::string text{};

    bool operator==(const PictureStroke&) const = default;
};

// All the device pixels that the stroke can touch; not of a text, whose pixels come as a mask.
// `scale` is device pixels per pixel of the picture.
Box BoxOf(const PictureStroke& stroke, double scale);

// Draws it, given that box; nothing of a text.
void Draw(const Canvas& canvas, const PictureStroke& stroke, double scale, const Box& box);

} // namespace selvane
