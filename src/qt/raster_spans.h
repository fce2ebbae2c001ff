// What the rasterisers share: whole pixels from coordinates, runs of pixels, and mixing.
#pragma once

#include "qt/raster.h"

namespace selvane {

// The whole number at or below a coordinate of any size.
int WholeBelow(double coordinate);
int NearestWhole(double coordinate);

// Pixels from `first` up to, not including, `end`.
struct Run
{
    int first, end;

    bool IsEmpty() const { return first >= end; }
};

Run Clipped(Run run, int limit);

// The pixels whose centres lie from `low` to `high`, both included.
Run CentresWithin(double low, double high);

void FillRun(Pixel* row, Run run, Pixel pixel);
void FillBlock(const Canvas& canvas, Run across, Run down, Pixel pixel);

// A coverage of 0 or less leaves the pixel, 1 or more replaces it.
void Blend(Pixel& below, Pixel above, double coverage);

} // namespace selvane
