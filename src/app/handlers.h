// What runs when: the handlers of the controls and of the windows. A constant table that the module
// above all handlers fills (program/handlers.cpp), so that a bar's value can run the bar's handler.
#pragma once

#include "app/control_ids.h"

#include <array>

namespace selvane {

struct Simulation;

using Procedure = void (*)(Simulation&);

// Null where a control has no handler.
struct Handlers
{
    std::array<Procedure, kScrollBarCount> change{};
    std::array<Procedure, kButtonCount> click{};
    std::array<Procedure, kMenuCount> menu{};
    std::array<Procedure, kTimerCount> tick{};
    std::array<Procedure, kLabelCount> label{};
    std::array<Procedure, kWindowCount> load{}, activate{}, unload{};
};

extern const Handlers kHandlers;

} // namespace selvane
