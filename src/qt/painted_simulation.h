// PaintedSimulation: the simulation and the two pictures that it paints, loaded and first shown.
#pragma once

#include "app/simulation.h"
#include "qt/picture_surface.h"

namespace selvane {

struct PaintedSimulation
{
    // Needs neither the application object nor its thread: the main picture holds its text, and the
    // other one, which is full of it, has no scale yet. The platform outlives it.
    explicit PaintedSimulation(Platform& platform);

    PictureSurface picSelvane, picDemo;
    Simulation sim;
};

} // namespace selvane
