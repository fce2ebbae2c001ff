// DrawingSurface: what the scenes need of a picture. A scene is a list of immediate calls in a
// user coordinate system with y growing upward; nothing is kept by the caller.
// Coordinates and radii are user units, rounded to single precision as the surface takes them;
// angles are radians, counter-clockwise from the +x axis.
#pragma once

#include "app/colour.h"

#include <optional>
#include <string_view>

namespace selvane {

enum class Fill { Solid = 0, Transparent = 1 };

class DrawingSurface
{
public:
    // The outer size in pixels; the user scale starts with one unit per pixel, centred.
    DrawingSurface(int width, int height)
        : ScaleLeft(-width / 2.0),
          ScaleTop(height / 2.0),
          ScaleWidth(width),
          ScaleHeight(-height),
          Width(width),
          Height(height)
    {}
    virtual ~DrawingSurface() = default;
    DrawingSurface(const DrawingSurface&) = delete;
    DrawingSurface& operator=(const DrawingSurface&) = delete;

    // The user scale: a write takes effect with the next call and leaves what is drawn.
    double ScaleLeft, ScaleTop, ScaleWidth, ScaleHeight;
    const int Width, Height;

    // Stay as set, also across Cls.
    Colour ForeColor; // outlines, dots and text
    Colour FillColor;
    Fill FillStyle = Fill::Solid;     // whether closed circles and sectors are filled
    float CurrentX = 0, CurrentY = 0; // top left corner of the next text

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

protected:
    // What a surface does with a call; a surface that needs less leaves the rest empty.
    virtual void OnCls() {}
    virtual void OnLine(float, float, float, float, Colour) {}
    virtual void OnCircle(float, float, float, Colour, std::optional<Colour>) {}
    virtual void OnArc(float, float, float, Colour, double, double) {}
    virtual void OnSector(float, float, float, Colour, std::optional<Colour>, double, double) {}
    virtual void OnPoint(float, float, Colour) {}
    virtual void OnText(float, float, Colour, std::string_view) {}

private:
    std::optional<Colour> FillOfClosedShape() const;
};

} // namespace selvane
