// The controls that belong to a step of a tutorial: the view angle of the scenes, and the range
// whose meaning changes with the step.
#pragma once

#include <string_view>

namespace selvane {

struct Simulation;

// sclViewD, txtViewD, lblViewD.
void ShowViewControls(Simulation& sim);
void HideViewControls(Simulation& sim);

// sclRange, txtRange, lblRange.
void ShowRangeControls(Simulation& sim);
void HideRangeControls(Simulation& sim);

// Says what sclRange stands for in this step.
void NameRange(Simulation& sim, std::string_view caption, std::string_view toolTip);

} // namespace selvane
