#include "qt/picture_surface.h"

#include "qt/appearance.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace selvane {

namespace {

using Kind = PictureStroke::Kind;

std::optional<Pixel> PixelOf(std::optional<Colour> colour)
{
    return colour ? std::optional(selvane::PixelOf(*colour)) : std::nullopt;
}

Box Whole(const Canvas& canvas)
{
    return {{0, canvas.width}, {0, canvas.height}};
}

} // namespace

PictureSurface::PictureSurface(const PictureRow& row, double scale)
    : DrawingSurface(row.place.width, row.place.height), background_(PixelOf(row.background))
{
    if (scale > 0) SetDeviceScale(scale);
}

void PictureSurface::SetDeviceScale(double scale)
{
    const int width = qRound(Width * scale);
    const int height = qRound(Height * scale);
    if (width == width_ && height == height_) return;
    Settle();
    width_ = width;
    height_ = height;
    scale_ = scale;
    pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    masks_.clear();
    DrawAnew();
}

void PictureSurface::ReleaseText()
{
    holdsText_ = false;
    DrawAnew();
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
    if (!log_.HasRest()) return;
    if (log_.CanTakeBack())
        changed_ = Around(changed_, log_.TakeBackTheRest(Target()));
    else
        DrawAnew();
}

void PictureSurface::DrawAnew()
{
    Clear(Target(), background_);
    changed_ = Whole(Target());
    const StrokeList repeated = log_.TakeRepeated();
    for (std::size_t index = 0; index < repeated.Size(); ++index) Take(repeated[index]);
}

// Draws a stroke, unless it stands already.
void PictureSurface::Take(const PictureStroke& stroke)
{
    if (log_.Repeats(stroke)) return;
    Settle();
    const bool isText = stroke.kind == Kind::Text;
    const Box box = Clipped(isText ? BoxOfText(stroke) : BoxOf(stroke, scale_), Target());
    changed_ = Around(changed_, box);
    log_.Add(stroke, Target(), box);
    if (box.IsEmpty()) return;
    if (isText)
        DrawText(stroke);
    else
        Draw(Target(), stroke, scale_, box);
}

// A text's corner is a corner of its pixel.
Box PictureSurface::BoxOfText(const PictureStroke& stroke)
{
    if (holdsText_ || pixels_.empty()) return {};
    const TextMask& mask = MaskOf(stroke.text);
    const int left = qRound(stroke.at.x * scale_ - scale_ / 2);
    const int top = qRound(stroke.at.y * scale_ - scale_ / 2);
    return {{left, left + mask.width}, {top, top + mask.height}};
}

void PictureSurface::DrawText(const PictureStroke& stroke)
{
    const TextMask& mask = MaskOf(stroke.text);
    const Box box = BoxOfText(stroke);
    DrawMask(Target(), box.across.first, box.down.first, {mask.coverage, mask.width, mask.height},
             stroke.pixel);
}

// In pixels of the picture: the middle of the one in which a place lies on the whole coordinate.
DevicePoint PictureSurface::Place(float x, float y) const
{
    return {(x - ScaleLeft) * PerUnit(across_, ScaleWidth, Width) + 0.5,
            (y - ScaleTop) * PerUnit(down_, ScaleHeight, Height) + 0.5};
}

// A dot needs two of these, and a frame has a thousand dots: the division is kept.
double PictureSurface::PerUnit(Axis& axis, double units, int pixels)
{
    if (axis.units != units) axis = {units, pixels / units};
    return axis.pixelsPerUnit;
}

double PictureSurface::Length(float userUnits) const
{
    return std::fabs(userUnits * PerUnit(across_, ScaleWidth, Width));
}

void PictureSurface::OnCls()
{
    if (log_.IsBlank()) DrawAnew(); // twice in a row: it is to be empty
    log_.Restart();
}

void PictureSurface::OnLine(float x1, float y1, float x2, float y2, Colour colour)
{
    Take({.kind = Kind::Line, .pixel = PixelOf(colour), .at = Place(x1, y1), .to = Place(x2, y2)});
}

void PictureSurface::OnPoint(float x, float y, Colour colour)
{
    Take({.kind = Kind::Dot, .pixel = PixelOf(colour), .at = Place(x, y)});
}

void PictureSurface::OnCircle(float x, float y, float radius, Colour outline,
                              std::optional<Colour> fill)
{
    Take({.kind = Kind::Circle,
          .pixel = PixelOf(outline),
          .at = Place(x, y),
          .radius = Length(radius),
          .filling = PixelOf(fill)});
}

void PictureSurface::OnArc(float x, float y, float radius, Colour outline, double start, double end)
{
    Take({.kind = Kind::Arc,
          .pixel = PixelOf(outline),
          .at = Place(x, y),
          .radius = Length(radius),
          .start = start,
          .end = end});
}

void PictureSurface::OnSector(float x, float y, float radius, Colour outline,
                              std::optional<Colour> fill, double start, double end)
{
    Take({.kind = fill ? Kind::Sector : Kind::Arc,
          .pixel = PixelOf(outline),
          .at = Place(x, y),
          .radius = Length(radius),
          .start = start,
          .end = end,
          .filling = PixelOf(fill)});
}

void PictureSurface::OnText(float x, float y, Colour colour, std::string_view text)
{
    Take({.kind = Kind::Text,
          .pixel = PixelOf(colour),
          .at = Place(x, y),
          .text = std::string(text)});
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
