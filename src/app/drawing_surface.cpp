#include "app/drawing_surface.h"

#include "app/assertion.h"

#include <cmath>
#include <numbers>

namespace selvane {

namespace {

float Single(double coordinate)
{
    SELVANE_ASSERT(std::fabs(coordinate) < 1e30); // false for nan too
    return static_cast<float>(coordinate);
}

} // namespace

std::optional<Colour> DrawingSurface::FillOfClosedShape() const
{
    return FillStyle == Fill::Solid ? std::optional(FillColor) : std::nullopt;
}

void DrawingSurface::Cls()
{
    OnCls();
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2)
{
    Line(x1, y1, x2, y2, ForeColor);
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2, Colour colour)
{
    OnLine(Single(x1), Single(y1), Single(x2), Single(y2), colour);
}

void DrawingSurface::Circle(double x, double y, double radius)
{
    Circle(x, y, radius, ForeColor);
}

void DrawingSurface::Circle(double x, double y, double radius, Colour outline)
{
    OnCircle(Single(x), Single(y), Single(radius), outline, FillOfClosedShape());
}

void DrawingSurface::Circle(double x, double y, double radius, Colour outline, double start,
                            double end)
{
    constexpr double kFullTurn = 2 * std::numbers::pi + 1e-9;
    SELVANE_ASSERT(std::fabs(start) <= kFullTurn && std::fabs(end) <= kFullTurn);
    if (start < 0 && end < 0)
        OnSector(Single(x), Single(y), Single(radius), outline, FillOfClosedShape(), start, end);
    else
        OnArc(Single(x), Single(y), Single(radius), outline, start, end);
}

void DrawingSurface::PSet(double x, double y)
{
    OnPoint(Single(x), Single(y), ForeColor);
}

void DrawingSurface::MoveTo(double x, double y)
{
    CurrentX = Single(x);
    CurrentY = Single(y);
}

void DrawingSurface::Print(std::string_view text)
{
    OnText(CurrentX, CurrentY, ForeColor, text);
}

} // namespace selvane
