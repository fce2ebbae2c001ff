#include "qt/picture_surface.h"

#include "qt/appearance.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace selvane {

namespace {

// Two strokes with the same numbers leave the same pixels; the first number is the kind.
template <typename... Numbers> auto Stroke(char kind, Numbers... numbers)
{
    return std::array{static_cast<double>(kind), static_cast<double>(numbers)...};
}

template <std::size_t N> std::string_view BytesOf(const std::array<double, N>& stroke)
{
    return {reinterpret_cast<const char*>(stroke.data()), sizeof stroke};
}

Box Whole(const Canvas& canvas)
{
    return {{0, canvas.width}, {0, canvas.height}};
}

// All that a stroke from one place to the other touches, which reaches so far beyond them.
Box Between(DevicePoint from, DevicePoint to, double reach)
{
    const auto run = [reach](double one, double other) {
        const auto [low, high] = std::minmax(one, other);
        return Run{WholeBelow(low - reach), WholeBelow(high + reach) + 1};
    };
    return {run(from.x, to.x), run(from.y, to.y)};
}

} // namespace

PictureSurface::PictureSurface(const PictureRow& row)
    : DrawingSurface(row.place.width, row.place.height), background_(PixelOf(row.background))
{
    SetDeviceScale(1);
}

void PictureSurface::SetDeviceScale(double scale)
{
    const int width = qRound(Width * scale);
    const int height = qRound(Height * scale);
    if (width == width_ && height == height_) return;
    std::vector<Pixel> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                              background_);
    if (!pixels_.empty()) {
        const QImage old =
            Image().scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        for (int y = 0; y < height; ++y)
            std::copy_n(reinterpret_cast<const Pixel*>(old.constScanLine(y)), width,
                        pixels.data() + static_cast<std::ptrdiff_t>(y) * width);
    }
    pixels_ = std::move(pixels);
    width_ = width;
    height_ = height;
    scale_ = scale;
    masks_.clear();
    log_.Forget();
    changed_ = Whole(Target());
}

QImage PictureSurface::Image()
{
    Settle();
    QImage image(reinterpret_cast<const uchar*>(pixels_.data()), width_, height_,
                 width_ * static_cast<int>(sizeof(Pixel)), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale_);
    return image;
}

QRect PictureSurface::TakeChanged()
{
    Settle();
    const Box box = std::exchange(changed_, {});
    if (box.IsEmpty()) return {};
    const auto inPicture = [this](int pixels) { return pixels / scale_; };
    return QRectF(QPointF(inPicture(box.across.first), inPicture(box.down.first)),
                  QPointF(inPicture(box.across.end), inPicture(box.down.end)))
        .toAlignedRect();
}

Canvas PictureSurface::Target()
{
    return {pixels_.data(), width_, height_};
}

// What the last frame drew and this one did not repeat goes.
void PictureSurface::Settle()
{
    if (log_.HasRest()) changed_ = Around(changed_, log_.TakeBackTheRest(Target()));
}

// Whether a stroke within the box has yet to be drawn. If so, the box may be drawn on.
bool PictureSurface::IsNew(std::string_view stroke, const Box& box)
{
    if (log_.Repeats(stroke)) return false;
    Settle();
    const Box touched = Clipped(box, Target());
    log_.Add(stroke, Target(), touched);
    changed_ = Around(changed_, touched);
    return true;
}

// The middle of the picture's pixel in which a place lies on the whole coordinate.
DevicePoint PictureSurface::Place(float x, float y) const
{
    return {((x - ScaleLeft) * PerUnit(across_, ScaleWidth, Width) + 0.5) * scale_,
            ((y - ScaleTop) * PerUnit(down_, ScaleHeight, Height) + 0.5) * scale_};
}

// A dot needs two of these, and a frame has a thousand dots: the division is kept.
double PictureSurface::PerUnit(Axis& axis, double units, int pixels)
{
    if (axis.units != units) axis = {units, pixels / units};
    return axis.pixelsPerUnit;
}

double PictureSurface::Length(float userUnits) const
{
    return std::fabs(userUnits * PerUnit(across_, ScaleWidth, Width)) * scale_;
}

void PictureSurface::OnCls()
{
    if (log_.Restart()) return;
    Clear(Target(), background_);
    changed_ = Whole(Target());
}

void PictureSurface::OnLine(float x1, float y1, float x2, float y2, Colour colour)
{
    const DevicePoint from = Place(x1, y1);
    const DevicePoint to = Place(x2, y2);
    const Pixel pixel = PixelOf(colour);
    if (IsNew(BytesOf(Stroke('L', from.x, from.y, to.x, to.y, pixel)),
              Between(from, to, scale_ + 1)))
        DrawLine(Target(), from, to, scale_, pixel);
}

void PictureSurface::OnPoint(float x, float y, Colour colour)
{
    const DevicePoint centre = Place(x, y);
    const int side = std::max(1, qRound(scale_));
    const Pixel pixel = PixelOf(colour);
    if (IsNew(BytesOf(Stroke('P', centre.x, centre.y, pixel)), SquareAt(centre, side)))
        FillSquare(Target(), centre, side, pixel);
}

// An outline is one pixel of the picture wide, half of it on either side of the edge.
void PictureSurface::OnCircle(float x, float y, float radius, Colour outline,
                              std::optional<Colour> fill)
{
    const Canvas canvas = Target();
    const DevicePoint centre = Place(x, y);
    const double size = Length(radius);
    const Pixel pixel = PixelOf(outline);
    const Pixel filling = fill ? PixelOf(*fill) : 0;
    if (!IsNew(BytesOf(Stroke('C', centre.x, centre.y, size, pixel, filling)),
               Between(centre, centre, size + scale_ + 1)))
        return;
    if (!fill) {
        DrawRing(canvas, centre, size, scale_, pixel);
        return;
    }
    FillDisc(canvas, centre, size + scale_ / 2, pixel);
    if (filling != pixel) FillDisc(canvas, centre, size - scale_ / 2, filling);
}

void PictureSurface::OnArc(float x, float y, float radius, Colour outline, double start, double end)
{
    const DevicePoint centre = Place(x, y);
    const double size = Length(radius);
    const Pixel pixel = PixelOf(outline);
    if (!IsNew(BytesOf(Stroke('A', centre.x, centre.y, size, pixel, start, end)),
               Between(centre, centre, size + scale_ + 1)))
        return;
    DrawArc(Target(), centre, size, scale_, {std::fabs(start), std::fabs(end)}, pixel);
    for (const double angle : {start, end})
        if (angle < 0) Spoke(centre, size, -angle, pixel);
}

void PictureSurface::OnSector(float x, float y, float radius, Colour outline,
                              std::optional<Colour> fill, double start, double end)
{
    if (!fill) {
        OnArc(x, y, radius, outline, start, end);
        return;
    }
    const Canvas canvas = Target();
    const DevicePoint centre = Place(x, y);
    const double size = Length(radius);
    const double half = scale_ / 2;
    const Pixel pixel = PixelOf(outline);
    const Pixel filling = PixelOf(*fill);
    if (!IsNew(BytesOf(Stroke('S', centre.x, centre.y, size, pixel, filling, start, end)),
               Between(centre, centre, size + scale_ + 1)))
        return;
    const Wedge wedge{-start, -end};
    FillSector(canvas, centre, size + half, wedge, half, pixel);
    if (filling != pixel) FillSector(canvas, centre, size - half, wedge, -half, filling);
}

void PictureSurface::Spoke(DevicePoint centre, double radius, double angle, Pixel pixel)
{
    DrawLine(Target(), centre,
             {centre.x + radius * std::cos(angle), centre.y - radius * std::sin(angle)}, scale_,
             pixel);
}

void PictureSurface::OnText(float x, float y, Colour colour, std::string_view text)
{
    const DevicePoint place = Place(x, y);
    const TextMask& mask = MaskOf(text);
    const Pixel pixel = PixelOf(colour);
    const double half = scale_ / 2; // a text's corner is a corner of its pixel
    const int left = qRound(place.x - half);
    const int top = qRound(place.y - half);
    std::string stroke(BytesOf(Stroke('T', left, top, pixel)));
    stroke += text;
    if (IsNew(stroke, {{left, left + mask.width}, {top, top + mask.height}}))
        DrawMask(Target(), left, top, {mask.coverage, mask.width, mask.height}, pixel);
}

// Few texts recur at every frame; a clock's texts pass through.
const PictureSurface::TextMask& PictureSurface::MaskOf(std::string_view text)
{
    constexpr qsizetype kMost = 64;
    const QByteArray key(text.data(), static_cast<qsizetype>(text.size()));
    const auto known = masks_.constFind(key);
    if (known != masks_.cend()) return *known;
    if (masks_.size() >= kMost) masks_.clear();

    const QString string = QString::fromUtf8(key);
    const QFont font = FontOf(9, Weight::Bold);
    const QFontMetricsF metrics(font);
    TextMask mask;
    mask.width =
        std::max(1, static_cast<int>(std::ceil((metrics.horizontalAdvance(string) + 2) * scale_)));
    mask.height = std::max(1, static_cast<int>(std::ceil(metrics.height() * scale_)));
    QImage image(mask.width, mask.height, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale_);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(0, metrics.ascent()), string);
    painter.end();
    for (int row = 0; row < mask.height; ++row) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        for (int at = 0; at < mask.width; ++at)
            mask.coverage.push_back(static_cast<std::uint8_t>(qAlpha(line[at])));
    }
    return *masks_.insert(key, mask);
}

} // namespace selvane
