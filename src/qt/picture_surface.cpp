#include "qt/picture_surface.h"

#include "qt/appearance.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <utility>

namespace selvane {

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
    shown_ = {~frame_.digest, 0, 0, 0, 0, false}; // all of it is new
    drawn_ = true;
}

QImage PictureSurface::Image() const
{
    QImage image(reinterpret_cast<const uchar*>(pixels_.data()), width_, height_,
                 width_ * static_cast<int>(sizeof(Pixel)), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale_);
    return image;
}

QRect PictureSurface::TakeChanged()
{
    if (!std::exchange(drawn_, false)) return {};
    const Frame before = std::exchange(shown_, frame_);
    if (before.digest != frame_.digest) return {0, 0, Width, Height};
    return BoxOf(before) | BoxOf(frame_);
}

QRect PictureSurface::BoxOf(const Frame& frame) const
{
    if (!frame.hasDots) return {};
    const double reach = scale_ + 1; // of a dot, and of rounding to whole pixels
    const QRectF box(QPointF(frame.left - reach, frame.top - reach) / scale_,
                     QPointF(frame.right + reach, frame.bottom + reach) / scale_);
    return (box & QRectF(0, 0, Width, Height)).toAlignedRect();
}

void PictureSurface::Frame::Add(std::initializer_list<double> stroke)
{
    constexpr std::uint64_t kPrime = 0x100000001b3; // of the 64-bit FNV-1a hash
    for (const double number : stroke)
        digest = (digest ^ std::bit_cast<std::uint64_t>(number)) * kPrime;
}

void PictureSurface::Frame::AddDot(DevicePoint centre)
{
    left = hasDots ? std::min(left, centre.x) : centre.x;
    right = hasDots ? std::max(right, centre.x) : centre.x;
    top = hasDots ? std::min(top, centre.y) : centre.y;
    bottom = hasDots ? std::max(bottom, centre.y) : centre.y;
    hasDots = true;
}

Canvas PictureSurface::Target()
{
    drawn_ = true;
    return {pixels_.data(), width_, height_};
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
    Clear(Target(), background_);
    frame_ = {};
}

void PictureSurface::OnLine(float x1, float y1, float x2, float y2, Colour colour)
{
    const DevicePoint from = Place(x1, y1);
    const DevicePoint to = Place(x2, y2);
    frame_.Add({from.x, from.y, to.x, to.y, 1.0 * PixelOf(colour)});
    DrawLine(Target(), from, to, scale_, PixelOf(colour));
}

void PictureSurface::OnPoint(float x, float y, Colour colour)
{
    const DevicePoint centre = Place(x, y);
    frame_.AddDot(centre);
    FillSquare(Target(), centre, std::max(1, qRound(scale_)), PixelOf(colour));
}

// An outline is one pixel of the picture wide, half of it on either side of the edge.
void PictureSurface::OnCircle(float x, float y, float radius, Colour outline,
                              std::optional<Colour> fill)
{
    const Canvas canvas = Target();
    const DevicePoint centre = Place(x, y);
    const double size = Length(radius);
    frame_.Add(
        {centre.x, centre.y, size, 1.0 * PixelOf(outline), fill ? 1.0 * PixelOf(*fill) : 0.0});
    if (!fill) {
        DrawRing(canvas, centre, size, scale_, PixelOf(outline));
        return;
    }
    FillDisc(canvas, centre, size + scale_ / 2, PixelOf(outline));
    if (*fill != outline) FillDisc(canvas, centre, size - scale_ / 2, PixelOf(*fill));
}

void PictureSurface::OnArc(float x, float y, float radius, Colour outline, double start, double end)
{
    const DevicePoint centre = Place(x, y);
    const double size = Length(radius);
    const Pixel pixel = PixelOf(outline);
    frame_.Add({centre.x, centre.y, size, 1.0 * pixel, start, end});
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
    const Wedge wedge{-start, -end};
    frame_.Add(
        {centre.x, centre.y, size, 1.0 * PixelOf(outline), 1.0 * PixelOf(*fill), start, end});
    FillSector(canvas, centre, size + half, wedge, half, PixelOf(outline));
    if (*fill != outline) FillSector(canvas, centre, size - half, wedge, -half, PixelOf(*fill));
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
    frame_.Add({place.x, place.y, 1.0 * PixelOf(colour),
                static_cast<double>(std::hash<std::string_view>()(text))});
    const double half = scale_ / 2; // a text's corner is a corner of its pixel
    DrawMask(Target(), qRound(place.x - half), qRound(place.y - half),
             {mask.coverage, mask.width, mask.height}, PixelOf(colour));
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
