// Picture: a picture of the program as a record: its user scale, its pens, and what has been drawn
// on it since it was last cleared. A scene is a list of calls in a user coordinate system with y
// growing upward; a call appends a stroke, and a shell paints the strokes when the event is over.
// Coordinates and radii are user units, kept in single precision; angles are radians,
// counter-clockwise from the +x axis.
#pragma once

#include "app/control_table.h"
#include "raster/stroke.h"

#include <string_view>

namespace selvane {

enum class Fill { Solid = 0, Transparent = 1 };

struct Picture
{
    // The user scale starts with one unit per pixel and the origin in the middle.
    explicit Picture(const PictureRow& row);

    // The user scale: a write takes effect with the next call and leaves what is drawn.
    double ScaleLeft, ScaleTop, ScaleWidth, ScaleHeight;
    int Width, Height; // pixels

    // Stay as set, also across Cls.
    Colour ForeColor; // outlines, dots and text
    Colour FillColor;
    Fill FillStyle = Fill::Solid;     // whether closed circles and sectors are filled
    float CurrentX = 0, CurrentY = 0; // top left corner of the next text

    raster::Drawing drawing; // since the last Cls

    void Cls();
    void Line(double x1, double y1, double x2, double y2);
    void Line(double x1, double y1, double x2, double y2, Colour colour);
    void Circle(double x, double y, double radius);
    void Circle(double x, double y, double radius, Colour outline);
    // An arc from start to end, each at most a full turn in size. A negative angle means its size
    // and adds a radius to that end; two of them close a sector, which is filled like a circle.
    void Circle(double x, double y, double radius, Colour outline, double start, double end);
    void PSet(double x, double y);
    void MoveTo(double x, double y); // sets CurrentX, CurrentY
    void Print(std::string_view text);
};

// The strokes that a picture can hold. Each scene clears its picture first and draws a few
// thousand; far more come only where one of ours draws without clearing, which ends the program.
inline constexpr std::size_t kMostStrokes = 100'000;

} // namespace selvane
