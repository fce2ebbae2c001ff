#include "raster/painter.h"

#include "raster/spans.h"

#include <algorithm>
#include <cmath>

namespace selvane::raster {

namespace {

// What lies between two places and so far beyond them.
Box Between(DevicePoint from, DevicePoint to, double reach)
{
    const auto run = [reach](double one, double other) {
        const auto [low, high] = std::minmax(one, other);
        return Run{WholeBelow(low - reach), WholeBelow(high + reach) + 1};
    };
    return {run(from.x, to.x), run(from.y, to.y)};
}

} // namespace

// Where the strokes of a drawing lie on the image.
class Painter::View
{
public:
    View(const Painter& painter, const Drawing& drawing, TextMasks& texts)
        : painter_(painter), drawing_(drawing), texts_(texts), scale_(painter.scale_)
    {}

    // All the device pixels that the stroke can touch.
    Box BoxOf(const Stroke& stroke);

    // Draws it; the box is its own.
    void Draw(const Canvas& canvas, const Stroke& stroke, const Box& box);

private:
    void Use(const Stroke& stroke);
    DevicePoint At(float x, float y) const;
    DevicePoint At(const Stroke& stroke) const { return At(stroke.at[0], stroke.at[1]); }
    double Radius(const Stroke& stroke) const;
    void DrawCircle(const Canvas& canvas, const Stroke& stroke) const;
    void DrawOpenArc(const Canvas& canvas, const Stroke& stroke) const;
    void DrawSector(const Canvas& canvas, const Stroke& stroke) const;

    const Painter& painter_;
    const Drawing& drawing_;
    TextMasks& texts_;
    const double scale_; // device pixels per pixel of the picture

    const UserScale* user_ = nullptr;            // that of the stroke in hand
    double acrossPerUnit_ = 0, downPerUnit_ = 0; // pixels of the picture
};

// Nearly all strokes of a drawing share a scale, and a division is dear.
void Painter::View::Use(const Stroke& stroke)
{
    const UserScale& user = drawing_.ScaleOf(stroke);
    if (user_ == &user) return;
    user_ = &user;
    acrossPerUnit_ = painter_.width_ / user.width;
    downPerUnit_ = painter_.height_ / user.height;
}

// The middle of the picture's pixel in which the place lies on the whole coordinate.
DevicePoint Painter::View::At(float x, float y) const
{
    return {((x - user_->left) * acrossPerUnit_ + 0.5) * scale_,
            ((y - user_->top) * downPerUnit_ + 0.5) * scale_};
}

double Painter::View::Radius(const Stroke& stroke) const
{
    return std::fabs(stroke.at[2] * acrossPerUnit_) * scale_;
}

Box Painter::View::BoxOf(const Stroke& stroke)
{
    Use(stroke);
    const DevicePoint at = At(stroke);
    const double edge = scale_ + 1; // of a line or an outline, with what smoothing adds
    switch (stroke.kind) {
    case StrokeKind::Dot:
        return SquareAt(at, scale_ < 1.5 ? 1 : NearestWhole(scale_));
    case StrokeKind::Line:
        return Between(at, At(stroke.at[2], stroke.at[3]), edge);
    case StrokeKind::Arc:
    case StrokeKind::Circle:
    case StrokeKind::Sector:
        return Between(at, at, Radius(stroke) + edge);
    case StrokeKind::Text:
        break;
    }
    // The corner of a text is a corner of its pixel.
    const Mask mask = texts_.MaskOf(drawing_.TextOf(stroke), scale_);
    const int left = NearestWhole(at.x - scale_ / 2);
    const int top = NearestWhole(at.y - scale_ / 2);
    return {{left, left + mask.width}, {top, top + mask.height}};
}

void Painter::View::Draw(const Canvas& canvas, const Stroke& stroke, const Box& box)
{
    Use(stroke);
    const Pixel pixel = PixelOf(stroke.colour);
    switch (stroke.kind) {
    case StrokeKind::Dot:
        FillBox(canvas, box, pixel);
        break;
    case StrokeKind::Line:
        DrawLine(canvas, At(stroke), At(stroke.at[2], stroke.at[3]), scale_, pixel);
        break;
    case StrokeKind::Circle:
        DrawCircle(canvas, stroke);
        break;
    case StrokeKind::Arc:
        DrawOpenArc(canvas, stroke);
        break;
    case StrokeKind::Sector:
        DrawSector(canvas, stroke);
        break;
    case StrokeKind::Text:
        DrawMask(canvas, box.across.first, box.down.first,
                 texts_.MaskOf(drawing_.TextOf(stroke), scale_), pixel);
        break;
    }
}

// An outline is one pixel of the picture wide, half of it on either side of the edge.
void Painter::View::DrawCircle(const Canvas& canvas, const Stroke& stroke) const
{
    const DevicePoint centre = At(stroke);
    const double radius = Radius(stroke);
    if (!stroke.fill) {
        DrawRing(canvas, centre, radius, scale_, PixelOf(stroke.colour));
        return;
    }
    FillDisc(canvas, centre, radius + scale_ / 2, PixelOf(stroke.colour));
    if (stroke.fill != stroke.colour)
        FillDisc(canvas, centre, radius - scale_ / 2, PixelOf(*stroke.fill));
}

void Painter::View::DrawOpenArc(const Canvas& canvas, const Stroke& stroke) const
{
    const DevicePoint centre = At(stroke);
    const double radius = Radius(stroke);
    const Pixel pixel = PixelOf(stroke.colour);
    DrawArc(canvas, centre, radius, scale_, {std::fabs(stroke.start), std::fabs(stroke.end)},
            pixel);
    for (const double angle : {stroke.start, stroke.end}) {
        if (!(angle < 0)) continue;
        const DevicePoint rim{centre.x + radius * std::cos(-angle),
                              centre.y - radius * std::sin(-angle)};
        DrawLine(canvas, centre, rim, scale_, pixel);
    }
}

void Painter::View::DrawSector(const Canvas& canvas, const Stroke& stroke) const
{
    if (!stroke.fill) {
        DrawOpenArc(canvas, stroke);
        return;
    }
    const DevicePoint centre = At(stroke);
    const double radius = Radius(stroke);
    const double half = scale_ / 2;
    const Wedge wedge{-stroke.start, -stroke.end};
    FillSector(canvas, centre, radius + half, wedge, half, PixelOf(stroke.colour));
    if (stroke.fill != stroke.colour)
        FillSector(canvas, centre, radius - half, wedge, -half, PixelOf(*stroke.fill));
}

Painter::Painter(int width, int height, Colour background)
    : width_(width), height_(height), background_(PixelOf(background))
{}

void Painter::SetScale(double scale, TextMasks& texts)
{
    if (scale == scale_) return;
    scale_ = scale;
    imageWidth_ = NearestWhole(width_ * scale);
    imageHeight_ = NearestWhole(height_ * scale);
    pixels_.assign(static_cast<std::size_t>(imageWidth_) * static_cast<std::size_t>(imageHeight_),
                   background_);
    PaintWithin(Whole(), texts);
}

Box Painter::Paint(const Drawing& drawing, TextMasks& texts)
{
    const bool hasImage = scale_ > 0;
    const Box changed = hasImage ? Common(Differences(drawing, texts), Whole()) : Box{};
    painted_ = drawing;
    if (!changed.IsEmpty()) PaintWithin(changed, texts);
    return changed;
}

// Round all strokes of either drawing but those at its beginning and at its end that they share.
Box Painter::Differences(const Drawing& drawing, TextMasks& texts) const
{
    std::span<const Stroke> before = painted_.Strokes();
    std::span<const Stroke> now = drawing.Strokes();
    // As a rule the scales and the texts are those of the drawing before, and the strokes alone
    // decide.
    const bool strokesDecide = drawing.HasTheSameScalesAndTexts(painted_);
    const auto same = [&](const Stroke& one, const Stroke& other) {
        return strokesDecide ? one == other : Same(painted_, one, drawing, other);
    };
    const auto [from, fromNow] = std::ranges::mismatch(before, now, same);
    before = {from, before.end()};
    now = {fromNow, now.end()};
    while (!before.empty() && !now.empty() && same(before.back(), now.back())) {
        before = before.first(before.size() - 1);
        now = now.first(now.size() - 1);
    }
    Box box{};
    View was(*this, painted_, texts), is(*this, drawing, texts);
    for (const Stroke& stroke : before) box = Around(box, was.BoxOf(stroke));
    for (const Stroke& stroke : now) box = Around(box, is.BoxOf(stroke));
    return box;
}

void Painter::PaintWithin(const Box& box, TextMasks& texts)
{
    const Canvas canvas{pixels_.data(), imageWidth_, imageHeight_, box};
    FillBox(canvas, box, background_);
    View view(*this, painted_, texts);
    for (const Stroke& stroke : painted_.Strokes()) {
        const Box touched = view.BoxOf(stroke);
        if (!Common(touched, box).IsEmpty()) view.Draw(canvas, stroke, touched);
    }
}

} // namespace selvane::raster
