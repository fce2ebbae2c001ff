// The fields of SimState that a dump shows, by name; the others are scratch.
#pragma once

#include "app/simulation.h"

#include <span>
#include <string>
#include <string_view>

namespace selvane::replay {

struct SimField
{
    std::string_view name;
    std::string (*text)(const Simulation& sim); // as a dump writes the value
};

// In byte order of their names.
std::span<const SimField> SimFields();

} // namespace selvane::replay
