// StrokeLog: the strokes that stand on a picture, the later ones with the pixels below them. A
// frame that begins as the one before keeps what it repeats; from the first stroke that differs,
// the old ones are taken back, the last one first. The picture is the same, to the last bit, as if
// it had been cleared and drawn anew.
#pragma once

#include "raster/spans.h"
#include "raster/stroke_list.h"

#include <cstddef>
#include <vector>

namespace selvane {

// The smallest box round both; an empty one counts for nothing.
Box Around(const Box& one, const Box& other);

class StrokeLog
{
public:
    // Whether the frame has no stroke yet.
    bool IsBlank() const { return repeated_ == 0; }

    // The next frame begins: the strokes of the last one stand until it differs from them.
    void Restart() { repeated_ = 0; }

    // Whether the stroke is the next one of those that stand already, so that it stands too.
    bool Repeats(const PictureStroke& stroke);

    // Whether strokes stand that were not repeated, and whether these can be taken back.
    bool HasRest() const { return repeated_ < strokes_.Size(); }
    bool CanTakeBack() const { return !forgetful_ && repeated_ >= firmly_; }

    // Takes them back; returns where.
    Box TakeBackTheRest(const Canvas& canvas);

    // Remembers a stroke and what is below it; call before it is drawn within the box, with nothing
    // left to take back. Those that cover much can then no longer be taken back, nor those before
    // them. Of strokes that no frame ends, the oldest are forgotten.
    void Add(const PictureStroke& stroke, const Canvas& canvas, const Box& box);

    // The strokes repeated so far, in their order; empties the log.
    StrokeList TakeRepeated();

private:
    void SavePixels(const Canvas& canvas, const Box& box);

    StrokeList strokes_;
    std::size_t firmly_ = 0;   // strokes that cannot be taken back
    std::vector<Box> boxes_;   // one for each of the others
    std::vector<Pixel> below_; // of each box, row upon row
    std::size_t repeated_ = 0; // strokes of this frame that stand
    bool forgetful_ = false;   // more strokes stand than are known
};

} // namespace selvane
