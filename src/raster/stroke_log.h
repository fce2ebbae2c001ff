// StrokeLog: the strokes that stand on a picture, each with the pixels it covered. A frame that
// begins as the one before keeps what it repeats; from the first stroke that differs, the old ones
// are taken back, the last one first. The picture is the same, to the last bit, as if it had been
// cleared and drawn anew.
#pragma once

#include "raster/picture_stroke.h"
#include "raster/spans.h"

#include <cstddef>
#include <vector>

namespace selvane {

// The smallest box round both; an empty one counts for nothing.
Box Around(const Box& one, const Box& other);

class StrokeLog
{
public:
    // The next frame begins. False where the strokes that stand cannot be taken back: they are no
    // longer known, and the picture has to be cleared.
    bool Restart();

    // Whether the stroke is the next one of those that stand already, so that it stands too.
    bool Repeats(const PictureStroke& stroke);

    bool HasRest() const { return repeated_ < strokes_.size(); }

    // Takes back the strokes that stand but were not repeated; returns where.
    Box TakeBackTheRest(const Canvas& canvas);

    // Remembers a stroke and what is below it; call before it is drawn within the box, with nothing
    // left to take back. Strokes that cover too much in all can no longer be taken back; of those
    // that no frame ends, the oldest are forgotten.
    // Returns the stroke, valid until the next one.
    const PictureStroke& Add(PictureStroke&& stroke, const Canvas& canvas, const Box& box);

    // The strokes that stand, in their order; empties the log, as before the first Restart.
    std::vector<PictureStroke> TakeAll();

private:
    void SavePixels(const Canvas& canvas, const Box& box);
    void ForgetPixels();

    std::vector<PictureStroke> strokes_;
    std::vector<Box> boxes_;   // one for each stroke while they can be taken back
    std::vector<Pixel> below_; // of each box, row upon row
    std::size_t repeated_ = 0; // strokes of this frame that stood already
    bool canTakeBack_ = false;
};

} // namespace selvane
