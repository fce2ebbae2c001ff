#include "raster/stroke.h"

namespace selvane::raster {

void Drawing::Clear()
{
    strokes_.clear();
    scales_.clear();
    text_.clear();
}

Stroke& Drawing::Add(const UserScale& scale, std::string_view text)
{
    if (scales_.empty() || scales_.back() != scale) scales_.push_back(scale);
    Stroke& stroke = strokes_.emplace_back();
    stroke.scale = static_cast<std::uint32_t>(scales_.size() - 1);
    stroke.textAt = static_cast<std::uint32_t>(text_.size());
    stroke.textLength = static_cast<std::uint32_t>(text.size());
    text_ += text;
    return stroke;
}

bool Same(const Drawing& drawing, const Stroke& stroke, const Drawing& other,
          const Stroke& otherStroke)
{
    return stroke.kind == otherStroke.kind && stroke.colour == otherStroke.colour &&
           stroke.fill == otherStroke.fill && stroke.at == otherStroke.at &&
           stroke.start == otherStroke.start && stroke.end == otherStroke.end &&
           drawing.ScaleOf(stroke) == other.ScaleOf(otherStroke) &&
           drawing.TextOf(stroke) == other.TextOf(otherStroke);
}

} // namespace selvane::raster
