// PictureSurface: a drawing surface over an image in device pixels. A user unit is scaled to the
// picture's pixels and those to the screen's; a dot is one pixel of the picture, written straight
// into the image.
#pragma once

#include "app/control_table.h"
#include "app/drawing_surface.h"
#include "qt/raster.h"

#include <QHash>
#include <QImage>
#include <QRect>
#include <initializer_list>
#include <vector>

namespace selvane {

class PictureSurface : public DrawingSurface
{
public:
    explicit PictureSurface(const PictureRow& row);

    // Device pixels per pixel of the picture, above 0. A new scale keeps what is drawn, resampled.
    void SetDeviceScale(double scale);
    double DeviceScale() const { return scale_; }

    // The picture as drawn so far; valid until the surface is drawn on or scaled.
    QImage Image() const;

    // Where the picture differs from what it was at the last call, in pixels of the picture; empty
    // where nothing was drawn. Never too small, but it may be too large.
    QRect TakeChanged();

protected:
    void OnCls() override;
    void OnLine(float x1, float y1, float x2, float y2, Colour colour) override;
    void OnCircle(float x, float y, float radius, Colour outline,
                  std::optional<Colour> fill) override;
    void OnArc(float x, float y, float radius, Colour outline, double start, double end) override;
    void OnSector(float x, float y, float radius, Colour outline, std::optional<Colour> fill,
                  double start, double end) override;
    void OnPoint(float x, float y, Colour colour) override;
    void OnText(float x, float y, Colour colour, std::string_view text) override;

private:
    // What was drawn since the last Cls, as far as it tells where two frames differ: dots by where
    // they lie, since they are many and move, all else by a digest, since it mostly stays.
    struct Frame
    {
        std::uint64_t digest = 0;
        double left = 0, top = 0, right = 0, bottom = 0; // device pixels
        bool hasDots = false;

        void Add(std::initializer_list<double> stroke);
        void AddDot(DevicePoint centre);
    };

    struct TextMask
    {
        std::vector<std::uint8_t> coverage;
        int width = 0, height = 0;
    };

    struct Axis
    {
        double units, pixelsPerUnit;
    };

    static double PerUnit(Axis& axis, double units, int pixels);
    QRect BoxOf(const Frame& frame) const;
    Canvas Target();
    DevicePoint Place(float x, float y) const;
    double Length(float userUnits) const;
    void Spoke(DevicePoint centre, double radius, double angle, Pixel pixel);
    const TextMask& MaskOf(std::string_view text);

    const Pixel background_;
    mutable Axis across_{}, down_{}; // as last worked out
    double scale_ = 1;
    int width_ = 0, height_ = 0; // device pixels
    std::vector<Pixel> pixels_;
    QHash<QByteArray, TextMask> masks_;
    Frame frame_, shown_;
    bool drawn_ = true;
};

} // namespace selvane
