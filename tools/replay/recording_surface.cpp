#include "replay/recording_surface.h"

#include "replay/crc32.h"
#include "replay/value_text.h"

#include <algorithm>
#include <iterator>

namespace selvane::replay {

namespace {

void AppendNumber(std::string& line, double value, StrokeNumbers numbers)
{
    line += ' ';
    if (numbers == StrokeNumbers::NineDigits)
        AppendNineDigits(line, value);
    else
        AppendThreeDecimals(line, value);
}

std::size_t Coordinates(StrokeKind kind)
{
    switch (kind) {
    case StrokeKind::pset:
    case StrokeKind::text:
        return 2;
    case StrokeKind::line:
        return 4;
    case StrokeKind::arc:
    case StrokeKind::circle:
    case StrokeKind::sector:
        break;
    }
    return 3;
}

bool IsRound(StrokeKind kind)
{
    return kind == StrokeKind::arc || kind == StrokeKind::circle || kind == StrokeKind::sector;
}

} // namespace

std::vector<Stroke> RecordingSurface::Of(StrokeKind kind) const
{
    std::vector<Stroke> found;
    std::ranges::copy_if(strokes_, std::back_inserter(found),
                         [&](const Stroke& stroke) { return stroke.kind == kind; });
    return found;
}

std::size_t RecordingSurface::Count(StrokeKind kind) const
{
    return static_cast<std::size_t>(std::ranges::count(strokes_, kind, &Stroke::kind));
}

void RecordingSurface::AppendLine(std::string& line, const Stroke& stroke,
                                  StrokeNumbers numbers) const
{
    line += kStrokeKinds[static_cast<std::size_t>(stroke.kind)];
    for (std::size_t each = 0; each < Coordinates(stroke.kind); ++each)
        AppendNumber(line, static_cast<double>(stroke.at[each]), numbers);
    line += ' ';
    AppendColour(line, stroke.colour);
    if (IsRound(stroke.kind)) {
        line += ' ';
        AppendColour(line, stroke.fill);
    }
    if (stroke.kind == StrokeKind::arc || stroke.kind == StrokeKind::sector) {
        AppendNumber(line, stroke.start, numbers);
        AppendNumber(line, stroke.end, numbers);
    }
    if (stroke.kind == StrokeKind::text) {
        line += ' ';
        line += Escaped(TextOf(stroke));
    }
}

std::string RecordingSurface::LineOf(const Stroke& stroke, StrokeNumbers numbers) const
{
    std::string line;
    AppendLine(line, stroke, numbers);
    return line;
}

std::uint32_t RecordingSurface::Digest() const
{
    std::uint32_t sum = 0;
    std::string line;
    for (const Stroke& stroke : strokes_) {
        line.clear();
        AppendLine(line, stroke, StrokeNumbers::ThreeDecimals);
        line += '\n';
        sum = Crc32(sum, line);
    }
    return sum;
}

void RecordingSurface::OnCls()
{
    strokes_.clear();
    text_.clear();
    ++clears_;
}

void RecordingSurface::OnLine(float x1, float y1, float x2, float y2, Colour colour)
{
    strokes_.push_back({StrokeKind::line, colour, std::nullopt, {x1, y1, x2, y2}});
}

void RecordingSurface::OnCircle(float x, float y, float radius, Colour outline,
                                std::optional<Colour> fill)
{
    strokes_.push_back({StrokeKind::circle, outline, fill, {x, y, radius}});
}

void RecordingSurface::OnArc(float x, float y, float radius, Colour outline, double start,
                             double end)
{
    strokes_.push_back({StrokeKind::arc, outline, std::nullopt, {x, y, radius}, start, end});
}

void RecordingSurface::OnSector(float x, float y, float radius, Colour outline,
                                std::optional<Colour> fill, double start, double end)
{
    strokes_.push_back({StrokeKind::sector, outline, fill, {x, y, radius}, start, end});
}

void RecordingSurface::OnPoint(float x, float y, Colour colour)
{
    strokes_.push_back({StrokeKind::pset, colour, std::nullopt, {x, y}});
}

void RecordingSurface::OnText(float x, float y, Colour colour, std::string_view text)
{
    strokes_.push_back(
        {StrokeKind::text, colour, std::nullopt, {x, y}, 0, 0, text_.size(), text.size()});
    text_ += text;
}

} // namespace selvane::replay
