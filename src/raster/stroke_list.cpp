#include "raster/stroke_list.h"

namespace selvane {

void StrokeList::Add(const PictureStroke& stroke)
{
    if (stroke.kind == PictureStroke::Kind::Dot) {
        places_.push_back({stroke.at, stroke.pixel, kDot});
        return;
    }
    places_.push_back({{}, {}, static_cast<std::uint32_t>(others_.size())});
    others_.push_back(stroke);
}

PictureStroke StrokeList::operator[](std::size_t index) const
{
    const Place& place = places_[index];
    if (place.other != kDot) return others_[place.other];
    return {.kind = PictureStroke::Kind::Dot, .pixel = place.pixel, .at = place.at};
}

bool StrokeList::IsAt(std::size_t index, const PictureStroke& stroke) const
{
    const Place& place = places_[index];
    if (place.other != kDot) return others_[place.other] == stroke;
    return stroke.kind == PictureStroke::Kind::Dot && place.at == stroke.at &&
           place.pixel == stroke.pixel;
}

void StrokeList::Shorten(std::size_t count)
{
    for (; places_.size() > count; places_.pop_back())
        if (places_.back().other != kDot) others_.pop_back();
}

} // namespace selvane
