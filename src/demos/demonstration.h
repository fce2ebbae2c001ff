// What the four demonstrations share: one group of menu items, a row of settings, a document.
#pragma once

#include "app/simulation.h"

#include <optional>
#include <string_view>

namespace selvane {

// The values that a demonstration assigns to the bars, in this order. Nothing it does not name
// changes: the argument of periapsis stays the user's.
struct DemoSettings
{
    int zoom, inclination;
    std::optional<std::string_view> inclinationText; // written over the bar's whole number
    int node, view, periapsis, apoapsis;
};

// Checks the item of a demonstration and unchecks the other three.
void CheckDemo(Simulation& sim, MenuId item);

// Assigns the settings as one row: only the zoom draws on the way.
void AssignSettings(Simulation& sim, const DemoSettings& settings);

} // namespace selvane
