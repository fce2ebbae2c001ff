// Painter: paints a drawing into an image in device pixels, and says where the image has changed
// since the drawing before. The same in every shell; what a text looks like the shell says.
#pragma once

#include "raster/raster.h"
#include "raster/stroke.h"

#include <vector>

namespace selvane::raster {

// Where the shapes of words come from: a shell's fonts.
class TextMasks
{
public:
    virtual ~TextMasks() = default;

    // The text at that scale, in device pixels per pixel of the picture; its top left corner is
    // that of the text. Valid until the next call.
    virtual Mask MaskOf(std::string_view text, double scale) = 0;
};

class Painter
{
public:
    // The picture's size in pixels of its own. It has no image before it has a scale.
    Painter(int width, int height, Colour background);

    // Device pixels per pixel of the picture, above 0. At a new scale the whole image is painted
    // anew, with the drawing that it had.
    void SetScale(double scale, TextMasks& texts);
    double Scale() const { return scale_; }

    // Makes the image that of the drawing. Returns the box in device pixels outside which it is the
    // same as before; empty where it is the same altogether.
    Box Paint(const Drawing& drawing, TextMasks& texts);

    // The image in device pixels, row upon row without gaps; valid until the next painting.
    const Pixel* Pixels() const { return pixels_.data(); }
    int Width() const { return imageWidth_; }
    int Height() const { return imageHeight_; }

private:
    class View;

    Box Whole() const { return {{0, imageWidth_}, {0, imageHeight_}}; }
    Box Differences(const Drawing& drawing, TextMasks& texts) const;
    void PaintWithin(const Box& box, TextMasks& texts);

    const int width_, height_; // pixels of the picture
    const Pixel background_;
    double scale_ = 0;
    int imageWidth_ = 0, imageHeight_ = 0; // device pixels
    std::vector<Pixel> pixels_;
    Drawing painted_; // what the image shows
};

} // namespace selvane::raster
