#include "raster/stroke_log.h"

#include <algorithm>

namespace selvane {

namespace {

std::size_t Area(const Box& box)
{
    if (box.IsEmpty()) return 0;
    return static_cast<std::size_t>(box.across.end - box.across.first) *
           static_cast<std::size_t>(box.down.end - box.down.first);
}

// More than this would cost more to keep and to take back than to clear and draw.
std::size_t MostPixels(const Canvas& canvas)
{
    return static_cast<std::size_t>(canvas.width) * static_cast<std::size_t>(canvas.height) / 4;
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

bool StrokeLog::Restart()
{
    repeated_ = 0;
    const bool canGoOn = known_ && !strokes_.empty();
    known_ = true;
    return canGoOn;
}

std::size_t StrokeLog::BytesBefore(std::size_t stroke) const
{
    return stroke == 0 ? 0 : strokes_[stroke - 1].bytesEnd;
}

bool StrokeLog::Repeats(std::string_view stroke)
{
    if (!HasRest()) return false;
    const std::size_t from = BytesBefore(repeated_);
    const std::size_t length = strokes_[repeated_].bytesEnd - from;
    if (std::string_view(bytes_).substr(from, length) != stroke) return false;
    ++repeated_;
    return true;
}

Box StrokeLog::TakeBackTheRest(const Canvas& canvas)
{
    Box changed{};
    for (; strokes_.size() > repeated_; strokes_.pop_back()) {
        const Box& box = strokes_.back().box;
        if (box.IsEmpty()) continue;
        const auto width = box.across.end - box.across.first;
        auto old = below_.end() - static_cast<std::ptrdiff_t>(Area(box));
        for (int row = box.down.first; row < box.down.end; ++row, old += width)
            std::copy_n(old, width, canvas.Row(row) + box.across.first);
        below_.resize(below_.size() - Area(box));
        changed = Around(changed, box);
    }
    bytes_.resize(BytesBefore(repeated_));
    return changed;
}

void StrokeLog::Add(std::string_view stroke, const Canvas& canvas, const Box& box)
{
    if (!known_) return;
    if (below_.size() + Area(box) > MostPixels(canvas)) {
        Forget();
        return;
    }
    for (int row = box.down.first; row < box.down.end; ++row) {
        const Pixel* const pixels = canvas.Row(row);
        for (int at = box.across.first; at < box.across.end; ++at) below_.push_back(pixels[at]);
    }
    bytes_ += stroke;
    strokes_.push_back({bytes_.size(), box});
    repeated_ = strokes_.size();
}

void StrokeLog::Forget()
{
    strokes_.clear();
    bytes_.clear();
    below_.clear();
    repeated_ = 0;
    known_ = false;
}

} // namespace selvane
