// Stroke: one drawing call, as a picture was given it, and all that its pixels hang on. Drawing:
// the strokes of a picture since it was cleared, in their order. Both are plain values: a shell
// paints them, a test reads them, and two pictures are compared by them.
#pragma once

#include "raster/colour.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace selvane::raster {

// In the order of their names in a script's dump.
enum class StrokeKind : std::uint8_t { Arc, Circle, Line, Dot, Sector, Text };
inline constexpr std::size_t kStrokeKindCount = 6;

// How user units lie on a picture: its left and top edge, and its extent to the right and downward.
// A negative height makes y grow upward. Width and height are not 0.
struct UserScale
{
    double left, top, width, height;

    bool operator==(const UserScale&) const = default;
};

struct Stroke
{
    StrokeKind kind = StrokeKind::Dot;
    Colour colour;                // of a line, an outline, a dot or a text
    std::optional<Colour> fill{}; // of circles and sectors; nothing: only their outline is drawn
    std::uint32_t scale = 0;      // which of the drawing's user scales it was drawn under
    // User units: x and y of the end of a line, of a centre or of a text's top left corner; then
    // the radius, or the line's other end.
    std::array<float, 4> at{};
    // Of arcs and sectors: radians counter-clockwise from the +x axis, each at most a full turn in
    // size. A negative one means its size and adds a radius to that end; both of a sector's are.
    double start = 0, end = 0;
    std::uint32_t textAt = 0, textLength = 0; // of a text: where it stands in the drawing's text

    // Within one drawing, or between two whose scales and texts are the same.
    bool operator==(const Stroke&) const = default;
};

class Drawing
{
public:
    void Clear();

    // A stroke at the end of the list, for the caller to fill in: all but its scale and its text,
    // if it is one. Valid until the next.
    Stroke& Add(const UserScale& scale, std::string_view text = {});

    std::span<const Stroke> Strokes() const { return strokes_; }
    std::string_view TextOf(const Stroke& stroke) const
    {
        return std::string_view(text_).substr(stroke.textAt, stroke.textLength);
    }
    const UserScale& ScaleOf(const Stroke& stroke) const { return scales_[stroke.scale]; }

    bool HasTheSameScalesAndTexts(const Drawing& other) const
    {
        return scales_ == other.scales_ && text_ == other.text_;
    }

private:
    std::vector<Stroke> strokes_;
    std::vector<UserScale> scales_; // in the order of their first use
    std::string text_;              // what all texts say, one behind the other
};

// Whether a stroke of one drawing gives the same pixels as a stroke of another, on pictures of one
// size.
bool Same(const Drawing& drawing, const Stroke& stroke, const Drawing& other,
          const Stroke& otherStroke);

} // namespace selvane::raster
