// The planet catalogue: five central bodies, chosen in the Planet menu.
#pragma once

#include "app/control_ids.h"
#include "raster/colour.h"

#include <span>
#include <string_view>

namespace selvane {

struct Simulation;

struct PlanetRow
{
    MenuId item;
    std::string_view name;
    double radius; // km, mean
    double mu;     // km^3/s^2, gravitational parameter
    double tilt;   // degrees, axial tilt
    double day;    // hours, length of the day
    Colour light, dark;
};

std::span<const PlanetRow> PlanetTable();

// Writes the row of that item into the planet fields and into the caption of lblPlanet; no more.
void SelectPlanet(Simulation& sim, MenuId item);

} // namespace selvane
