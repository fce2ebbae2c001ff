// PictureSurface: a drawing surface over an image in device pixels. A user unit is scaled to the
// picture's pixels and those to the screen's; a dot is one pixel of the picture, written straight
// into the image.
#pragma once

#include "app/control_table.h"
#include "app/drawing_surface.h"
#include "raster/stroke_log.h"

#include <QHash>
#include <QImage>
#include <QRect>
#include <vector>

namespace selvane {

class PictureSurface : public DrawingSurface
{
public:
    // The scale as below; at 0 nothing is drawn before there is one.
    explicit PictureSurface(const PictureRow& row, double scale = 1);

    // Leaves text out until it is released. All else can be drawn without the application object
    // and outside its thread.
    void HoldText() { holdsText_ = true; }
    void ReleaseText();

    // Device pixels per pixel of the picture, above 0. At a new scale the picture is drawn anew.
    void SetDeviceScale(double scale);
    double DeviceScale() const { return scale_; }

    // The picture as drawn so far; valid until the surface is drawn on or scaled.
    QImage Image();

    // Where the picture differs from what it was at the last call, in pixels of the picture; empty
    // where it is the same. Never too small, but it may be too large.
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
    DevicePoint Place(float x, float y) const;
    double Length(float userUnits) const;
    Canvas Target();
    void Settle();
    void DrawAnew();
    void Take(const PictureStroke& stroke);
    Box BoxOfText(const PictureStroke& stroke);
    void DrawText(const PictureStroke& stroke);
    const TextMask& MaskOf(std::string_view text);

    const Pixel background_;
    mutable Axis across_{}, down_{}; // as last worked out
    double scale_ = 0;
    int width_ = 0, height_ = 0; // device pixels
    std::vector<Pixel> pixels_;
    QHash<QByteArray, TextMask> masks_;
    bool holdsText_ = false;
    StrokeLog log_;
    Box changed_{}; // since the last TakeChanged
};

} // namespace selvane
