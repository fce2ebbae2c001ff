// StrokeLog: the strokes that stand on a picture, each with the pixels it covered. A frame that
// begins as the one before keeps what it repeats; from the first stroke that differs, the old ones
// are taken back, the last one first. The picture is the same, to the last bit, as if it had been
// cleared and drawn anew.
#pragma once

#include "raster/raster.h"
#include "raster/spans.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

// The smallest box round both; an empty one counts for nothing.
Box Around(const Box& one, const Box& other);

class StrokeLog
{
public:
    // The next frame begins. False where no stroke can be kept or taken back: the picture has to be
    // cleared.
    bool Restart();

    // Whether the stroke is the next one of those that stand already, so that it stands too. A
    // stroke is any bytes that are the same only where its pixels are.
    bool Repeats(std::string_view stroke);

    bool HasRest() const { return repeated_ < strokes_.size(); }

    // Takes back the strokes that stand but were not repeated; returns where.
    Box TakeBackTheRest(const Canvas& canvas);

    // Remembers a stroke and what is below it; call before it is drawn within the box, with nothing
    // left to take back. Strokes that cover too much in all are forgotten.
    void Add(std::string_view stroke, const Canvas& canvas, const Box& box);

    // As when what is on the picture is not known.
    void Forget();

private:
    struct Stroke
    {
        std::size_t bytesEnd; // in bytes_
        Box box;
    };

    std::size_t BytesBefore(std::size_t stroke) const;

    std::vector<Stroke> strokes_;
    std::string bytes_;
    std::vector<Pixel> below_; // of each stroke's box, row upon row
    std::size_t repeated_ = 0; // strokes of this frame that stood already
    bool known_ = false;
};

} // namespace selvane
