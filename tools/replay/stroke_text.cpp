#include "replay/stroke_text.h"

#include "replay/crc32.h"
#include "replay/value_text.h"

#include <algorithm>
#include <iterator>

namespace selvane::replay {

namespace {

using raster::Drawing, raster::Stroke, raster::StrokeKind;

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
    case StrokeKind::Dot:
    case StrokeKind::Text:
        return 2;
    case StrokeKind::Line:
        return 4;
    case StrokeKind::Arc:
    case StrokeKind::Circle:
    case StrokeKind::Sector:
        break;
    }
    return 3;
}

bool IsRound(StrokeKind kind)
{
    return kind == StrokeKind::Arc || kind == StrokeKind::Circle || kind == StrokeKind::Sector;
}

void AppendLine(std::string& line, const Drawing& drawing, const Stroke& stroke,
                StrokeNumbers numbers)
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
    if (stroke.kind == StrokeKind::Arc || stroke.kind == StrokeKind::Sector) {
        AppendNumber(line, stroke.start, numbers);
        AppendNumber(line, stroke.end, numbers);
    }
    if (stroke.kind == StrokeKind::Text) {
        line += ' ';
        line += Escaped(drawing.TextOf(stroke));
    }
}

} // namespace

std::size_t Count(const Drawing& drawing, StrokeKind kind)
{
    return static_cast<std::size_t>(std::ranges::count(drawing.Strokes(), kind, &Stroke::kind));
}

std::vector<Stroke> Of(const Drawing& drawing, StrokeKind kind)
{
    std::vector<Stroke> found;
    std::ranges::copy_if(drawing.Strokes(), std::back_inserter(found),
                         [&](const Stroke& stroke) { return stroke.kind == kind; });
    return found;
}

std::string LineOf(const Drawing& drawing, const Stroke& stroke, StrokeNumbers numbers)
{
    std::string line;
    AppendLine(line, drawing, stroke, numbers);
    return line;
}

std::uint32_t Digest(const Drawing& drawing)
{
    std::uint32_t sum = 0;
    std::string line;
    for (const Stroke& stroke : drawing.Strokes()) {
        line.clear();
        AppendLine(line, drawing, stroke, StrokeNumbers::ThreeDecimals);
        line += '\n';
        sum = Crc32(sum, line);
    }
    return sum;
}

} // namespace selvane::replay
