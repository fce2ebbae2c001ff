#include "raster/stroke_log.h"

#include <algorithm>
#include <utility>

namespace selvane {

namespace {

std::size_t Area(const Box& box)
{
    if (box.IsEmpty()) return 0;
    return static_cast<std::size_t>(box.across.end - box.across.first) *
           static_cast<std::size_t>(box.down.end - box.down.first);
}

// A frame's dots, a marker and a small body fit in; a large body is cheaper drawn than kept.
std::size_t MostPixels(const Canvas& canvas)
{
    return static_cast<std::size_t>(canvas.width) * static_cast<std::size_t>(canvas.height) / 16;
}

Run Around(Run one, Run other)
{
    return {std::min(one.first, other.first), std::max(one.end, other.end)};
}

} // namespace

Box Around(const Box& one, const Box& other)
{
    if (one.IsEmpty()) return other;
    if (other.IsEmpty()) return one;
    return {Around(one.across, other.across), Around(one.down, other.down)};
}

bool StrokeLog::Repeats(const PictureStroke& stroke)
{
    if (forgetful_ || !HasRest() || !strokes_.IsAt(repeated_, stroke)) return false;
    ++repeated_;
    return true;
}

Box StrokeLog::TakeBackTheRest(const Canvas& canvas)
{
    Box changed{};
    for (; firmly_ + boxes_.size() > repeated_; boxes_.pop_back()) {
        const Box& box = boxes_.back();
        if (box.IsEmpty()) continue;
        const auto width = box.across.end - box.across.first;
        auto old = below_.end() - static_cast<std::ptrdiff_t>(Area(box));
        for (int row = box.down.first; row < box.down.end; ++row, old += width)
            std::copy_n(old, width, canvas.Row(row) + box.across.first);
        below_.resize(below_.size() - Area(box));
        changed = Around(changed, box);
    }
    strokes_.Shorten(repeated_);
    return changed;
}

void StrokeLog::Add(const PictureStroke& stroke, const Canvas& canvas, const Box& box)
{
    constexpr std::size_t kMostStrokes = 50'000;
    if (strokes_.Size() == kMostStrokes) {
        TakeRepeated();
        forgetful_ = true;
    }
    strokes_.Add(stroke);
    repeated_ = strokes_.Size();
    if (below_.size() + Area(box) > MostPixels(canvas)) {
        boxes_.clear();
        below_.clear();
        firmly_ = strokes_.Size();
    } else {
        SavePixels(canvas, box);
        boxes_.push_back(box);
    }
}

void StrokeLog::SavePixels(const Canvas& canvas, const Box& box)
{
    for (int row = box.down.first; row < box.down.end; ++row) {
        const Pixel* const pixels = canvas.Row(row);
        for (int at = box.across.first; at < box.across.end; ++at) below_.push_back(pixels[at]);
    }
}

StrokeList StrokeLog::TakeRepeated()
{
    strokes_.Shorten(repeated_);
    boxes_.clear();
    below_.clear();
    firmly_ = repeated_ = 0;
    forgetful_ = false;
    return std::exchange(strokes_, {});
}

} // namespace selvane
