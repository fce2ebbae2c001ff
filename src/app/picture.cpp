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

void Add(Picture& picture, const raster::Stroke& stroke, std::string_view text = {})
{
    SELVANE_ASSERT(picture.drawing.Strokes().size() < kMostStrokes);
    picture.drawing.Add(
        stroke, {picture.ScaleLeft, picture.ScaleTop, picture.ScaleWidth, picture.ScaleHeight},
        text);
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
    Add(*this, {.kind = StrokeKind::Line,
                .colour = colour,
                .at = {Single(x1), Single(y1), Single(x2), Single(y2)}});
}

void Picture::Circle(double x, double y, double radius)
{
    Circle(x, y, radius, ForeColor);
}

void Picture::Circle(double x, double y, double radius, Colour outline)
{
    Add(*this, {.kind = StrokeKind::Circle,
                .colour = outline,
                .fill = FillOfClosedShape(*this),
                .at = {Single(x), Single(y), Single(radius)}});
}

void Picture::Circle(double x, double y, double radius, Colour outline, double start, double end)
{
    constexpr double kFullTurn = 2 * std::numbers::pi + 1e-9;
    SELVANE_ASSERT(std::fabs(start) <= kFullTurn && std::fabs(end) <= kFullTurn);
    const bool closed = start < 0 && end < 0;
    Add(*this, {.kind = closed ? StrokeKind::Sector : StrokeKind::Arc,
                .colour = outline,
                .fill = closed ? FillOfClosedShape(*this) : std::nullopt,
                .at = {Single(x), Single(y), Single(radius)},
                .start = start,
                .end = end});
}

void Picture::PSet(double x, double y)
{
    Add(*this, {.kind = StrokeKind::Dot, .colour = ForeColor, .at = {Single(x), Single(y)}});
}

void Picture::MoveTo(double x, double y)
{
    CurrentX = Single(x);
    CurrentY = Single(y);
}

void Picture::Print(std::string_view text)
{
    Add(*this, {.kind = StrokeKind::Text, .colour = ForeColor, .at = {CurrentX, CurrentY}}, text);
}

} // namespace selvane
