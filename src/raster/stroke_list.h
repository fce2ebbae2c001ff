// StrokeList: strokes in their order. A picture is nearly all dots, which take little room here.
#pragma once

#include "raster/picture_stroke.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace selvane {

class StrokeList
{
public:
    std::size_t Size() const { return places_.size(); }
    void Add(const PictureStroke& stroke);

    // The index is below the size.
    PictureStroke operator[](std::size_t index) const;
    bool IsAt(std::size_t index, const PictureStroke& stroke) const;

    // Keeps the first ones; `count` is at most the size.
    void Shorten(std::size_t count);

private:
    static constexpr std::uint32_t kDot = UINT32_MAX;

    struct Place
    {
        DevicePoint at;      // where a dot is
        Pixel pixel;         // its colour
        std::uint32_t other; // which of the others it is, or kDot
    };

    std::vector<Place> places_;
    std::vector<PictureStroke> others_; // all but the dots
};

} // namespace selvane
