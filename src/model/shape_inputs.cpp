#include "model/shape_inputs.h"

#include "app/number_text.h"
#include "app/simulation.h"
#include "scene/redraw.h"

namespace selvane {

namespace {

constexpr int kKmPerStep = 100;

void ShowKm(Simulation& sim, FieldId field, ScrollBarId bar)
{
    SetText(sim, field, PlainNumber(Value(sim, bar) * kKmPerStep));
}

void ClampAtZero(Simulation& sim, ScrollBarId bar)
{
    if (Value(sim, bar) < 0) Assign(sim, bar, 0);
}

// The partner follows when the moved bar has passed it.
void PushDown(Simulation& sim, ScrollBarId partner, ScrollBarId moved)
{
    if (Value(sim, moved) < Value(sim, partner)) Assign(sim, partner, Value(sim, moved));
}

void PushUp(Simulation& sim, ScrollBarId partner, ScrollBarId moved)
{
    if (Value(sim, moved) > Value(sim, partner)) Assign(sim, partner, Value(sim, moved));
}

} // namespace

void sclApo_Change(Simulation& sim)
{
    sim.state.ShapeInput = ShapePair::Apsis;
    ClampAtZero(sim, sclApo);
    PushDown(sim, sclPeri, sclApo);
    ShowKm(sim, txtApo, sclApo);
    RedrawIfEnabled(sim);
}

void sclPeri_Change(Simulation& sim)
{
    ClampAtZero(sim, sclPeri);
    PushUp(sim, sclApo, sclPeri);
    ShowKm(sim, txtPeri, sclPeri);
    sim.state.ShapeInput = ShapePair::Apsis;
    RedrawIfEnabled(sim);
}

void sclPeriE_Change(Simulation& sim)
{
    ClampAtZero(sim, sclPeriE);
    ShowKm(sim, txtPeriE, sclPeriE);
    sim.state.ShapeInput = ShapePair::E;
    RedrawIfEnabled(sim);
}

void sclE_Change(Simulation& sim)
{
    if (Value(sim, sclE) == 100) Assign(sim, sclE, 99);
    SetText(sim, txtE, PlainNumber(Value(sim, sclE) / 100.0));
    sim.state.ShapeInput = ShapePair::E;
    RedrawIfEnabled(sim);
}

void sclSMajAxis_Change(Simulation& sim)
{
    PushDown(sim, sclSMinAxis, sclSMajAxis);
    ShowKm(sim, txtSMajAxis, sclSMajAxis);
    sim.state.ShapeInput = ShapePair::Axis;
    RedrawIfEnabled(sim);
}

void sclSMinAxis_Change(Simulation& sim)
{
    PushUp(sim, sclSMajAxis, sclSMinAxis);
    ShowKm(sim, txtSMinAxis, sclSMinAxis);
    sim.state.ShapeInput = ShapePair::Axis;
    RedrawIfEnabled(sim);
}

void btnApsisCalculate_Click(Simulation& sim)
{
    sim.state.ShapeInput = ShapePair::Apsis;
    RedrawScene(sim);
}

void btnECalculate_Click(Simulation& sim)
{
    sim.state.ShapeInput = ShapePair::E;
    RedrawScene(sim);
}

void btnAxisCalculate_Click(Simulation& sim)
{
    sim.state.ShapeInput = ShapePair::Axis;
    if (Number(sim, txtSMinAxis) > Number(sim, txtSMajAxis))
        SetText(sim, txtSMinAxis, Text(sim, txtSMajAxis));
    RedrawScene(sim);
}

} // namespace selvane
