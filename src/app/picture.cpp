#include "app/picture.h"

#include "app/assertion.h"

#include <cmath>
#include <numbers>
#include <optional>

namespace selvane {

namespace {

using raster::StrokeKind;

float Single(double coordinate)
{
    SELVANE_ASSERT(std::fabs(coordinate) < 1e30); // false for nan too
    return static_cast<float>(coordinate);
}

raster::Stroke& Add(Picture& picture, StrokeKind kind, Colour colour, std::string_view text = {})
{
    SELVANE_ASSERT(picture.drawing.Strokes().size() < kMostStrokes);
    raster::Stroke& stroke = picture.drawing.Add(
        {picture.ScaleLeft, picture.ScaleTop, picture.ScaleWidth, picture.ScaleHeight}, text);
    stroke.kind = kind;
    stroke.colour = colour;
    return stroke;
}

std::optional<Colour> FillOfClosedShape(const Picture& picture)
{
    return picture.FillStyle == Fill::Solid ? std::optional(picture.FillColor) : std::nullopt;
}

} // namespace

Picture::Picture(const PictureRow& row)
    : ScaleLeft(-row.place.width / 2.0),
      ScaleTop(row.place.height / 2.0),
      ScaleWidth(row.place.width),
      ScaleHeight(-row.place.height),
      Width(row.place.width),
      Height(row.place.height),
      ForeColor(row.foreColor),
      FillColor(row.fillColor)
{}

void Picture::Cls()
{
    drawing.Clear();
}

void Picture::Line(double x1, double y1, double x2, double y2)
{
    Line(x1, y1, x2, y2, ForeColor);
}

void Picture::Line(double x1, double y1, double x2, double y2, Colour colour)
{
    Add(*this, StrokeKind::Line, colour).at = {Single(x1), Single(y1), Single(x2), Single(y2)};
}

void Picture::Circle(double x, double y, double radius)
{
    Circle(x, y, radius, ForeColor);
}

void Picture::Circle(double x, double y, double radius, Colour outline)
{
    raster::Stroke& circle = Add(*this, StrokeKind::Circle, outline);
    circle.fill = FillOfClosedShape(*this);
    circle.at = {Single(x), Single(y), Single(radius)};
}

void Picture::Circle(double x, double y, double radius, Colour outline, double start, double end)
{
    constexpr double kFullTurn = 2 * std::numbers::pi + 1e-9;
    SELVANE_ASSERT(std::fabs(start) <= kFullTurn && std::fabs(end) <= kFullTurn);
    const bool closed = start < 0 && end < 0;
    raster::Stroke& arc = Add(*this, closed ? StrokeKind::Sector : StrokeKind::Arc, outline);
    if (closed) arc.fill = FillOfClosedShape(*this);
    arc.at = {Single(x), Single(y), Single(radius)};
    arc.start = start;
    arc.end = end;
}

void Picture::PSet(double x, double y)
{
    Add(*this, StrokeKind::Dot, ForeColor).at = {Single(x), Single(y)};
}

void Picture::MoveTo(double x, double y)
{
    CurrentX = Single(x);
    CurrentY = Single(y);
}

void Picture::Print(std::string_view text)
{
    Add(*this, StrokeKind::Text, ForeColor, text).at = {CurrentX, CurrentY};
}

} // namespace selvane
