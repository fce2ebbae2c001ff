// RecordingSurface: a picture that keeps the list of its strokes since the last Cls. A call costs
// one push onto a vector; text is made only when somebody asks for it.
#pragma once

#include "app/drawing_surface.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace selvane::replay {

enum class StrokeKind : std::uint8_t { arc, circle, line, pset, sector, text };
inline constexpr std::array<std::string_view, 6> kStrokeKinds{"arc",  "circle", "line",
                                                              "pset", "sector", "text"};

struct Stroke
{
    StrokeKind kind;
    Colour colour;                          // of outline, dot or text
    std::optional<Colour> fill;             // circle, sector
    std::array<float, 4> at{};              // x, y, then a radius, or the line's other end
    double start = 0, end = 0;              // arc, sector: radians as given
    std::size_t textAt = 0, textLength = 0; // text: its place in the surface's text
};

enum class StrokeNumbers { NineDigits, ThreeDecimals }; // "%.9g" or "%.3f"

class RecordingSurface final : public DrawingSurface
{
public:
    using DrawingSurface::DrawingSurface;

    const std::vector<Stroke>& Strokes() const { return strokes_; }
    std::vector<Stroke> Of(StrokeKind kind) const;
    std::size_t Count(StrokeKind kind) const;
    unsigned Clears() const { return clears_; } // calls of Cls so far

    std::string_view TextOf(const Stroke& stroke) const
    {
        return std::string_view(text_).substr(stroke.textAt, stroke.textLength);
    }

    // One line without its end, such as "pset 45.87 17.23 224,224,224".
    std::string LineOf(const Stroke& stroke, StrokeNumbers numbers) const;

    // CRC-32 over all lines with three decimals, each ended by a line feed.
    std::uint32_t Digest() const;

private:
    void OnCls() override;
    void OnLine(float x1, float y1, float x2, float y2, Colour colour) override;
    void OnCircle(float x, float y, float radius, Colour outline,
                  std::optional<Colour> fill) override;
    void OnArc(float x, float y, float radius, Colour outline, double start, double end) override;
    void OnSector(float x, float y, float radius, Colour outline, std::optional<Colour> fill,
                  double start, double end) override;
    void OnPoint(float x, float y, Colour colour) override;
    void OnText(float x, float y, Colour colour, std::string_view text) override;

    void AppendLine(std::string& line, const Stroke& stroke, StrokeNumbers numbers) const;

    std::vector<Stroke> strokes_;
    std::string text_; // what all text strokes wrote, one behind the other
    unsigned clears_ = 0;
};

} // namespace selvane::replay
