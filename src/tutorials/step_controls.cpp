#include "tutorials/step_controls.h"

#include "app/simulation.h"

#include <string>

namespace selvane {

namespace {

void ShowGroup(Simulation& sim, ScrollBarId bar, FieldId field, LabelId label, bool visible)
{
    Show(sim, bar, visible);
    Show(sim, field, visible);
    Show(sim, label, visible);
}

} // namespace

void ShowViewControls(Simulation& sim)
{
    ShowGroup(sim, sclViewD, txtViewD, lblViewD, true);
}
void HideViewControls(Simulation& sim)
{
    ShowGroup(sim, sclViewD, txtViewD, lblViewD, false);
}
void ShowRangeControls(Simulation& sim)
{
    ShowGroup(sim, sclRange, txtRange, lblRange, true);
}
void HideRangeControls(Simulation& sim)
{
    ShowGroup(sim, sclRange, txtRange, lblRange, false);
}

void NameRange(Simulation& sim, std::string_view caption, std::string_view toolTip)
{
    SetCaption(sim, lblRange, std::string(caption));
    SetToolTip(sim, lblRange, toolTip);
}

} // namespace selvane
