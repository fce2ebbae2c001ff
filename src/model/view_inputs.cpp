#include "model/view_inputs.h"

#include "app/number_text.h"
#include "app/simulation.h"
#include "scene/redraw.h"

namespace selvane {

namespace {

void ShowValue(Simulation& sim, FieldId field, ScrollBarId bar)
{
    SetText(sim, field, PlainNumber(Value(sim, bar)));
}

// SatDeg is the counter of the drawing loops too, so an angle bar keeps it round them. It is put
// back whether or not anything was drawn.
void RedrawAroundSatellite(Simulation& sim)
{
    SimState& state = sim.state;
    state.SavedSatDeg = state.SatDeg;
    RedrawIfEnabled(sim);
    state.SatDeg = state.SavedSatDeg;
}

// The end of the turn goes back to 0, not to the angle that would mean the same.
void WrapBeyondTurn(Simulation& sim, ScrollBarId bar)
{
    if (Value(sim, bar) > 360) Assign(sim, bar, 0);
    if (Value(sim, bar) < -360) Assign(sim, bar, 0);
}

} // namespace

void sclView_Change(Simulation& sim)
{
    SimState& state = sim.state;
    if (Value(sim, sclView) >= 360) Assign(sim, sclView, 0);
    if (Value(sim, sclView) <= -360) Assign(sim, sclView, 0);
    ShowValue(sim, txtView, sclView);
    state.ViewDeg = -Number(sim, txtView);
    state.ViewRad = Radians(state, state.ViewDeg);
    state.GlobeViewDeg = state.ViewDeg;
    RedrawAroundSatellite(sim);
}

void sclRot_Change(Simulation& sim)
{
    SimState& state = sim.state;
    ShowValue(sim, txtRot, sclRot);
    WrapBeyondTurn(sim, sclRot); // the nested run has written the right text
    state.RAAN = Number(sim, txtRot);
    state.PosRoll = Radians(state, state.RAAN);
    RedrawAroundSatellite(sim);
}

void sclARGP_Change(Simulation& sim)
{
    WrapBeyondTurn(sim, sclARGP);
    ShowValue(sim, txtARGP, sclARGP);
    sim.state.ArgpDeg = Number(sim, txtARGP);
    RedrawAroundSatellite(sim);
}

void sclIncl_Change(Simulation& sim)
{
    SimState& state = sim.state;
    ShowValue(sim, txtIncl, sclIncl);
    state.Incl = Number(sim, txtIncl);
    state.PosLon = Radians(state, state.Incl);
    if (Value(sim, sclIncl) > 180) Assign(sim, sclIncl, 180);
    if (Value(sim, sclIncl) < -180) Assign(sim, sclIncl, -180);
    RedrawAroundSatellite(sim);
}

void sclZoom_Change(Simulation& sim)
{
    SimState& state = sim.state;
    Picture& picture = sim.picSelvane;
    state.Zoom = Value(sim, sclZoom) * 0.1;
    SetText(sim, txtZoom, PlainNumber(state.Zoom));
    picture.ScaleHeight = -picture.Height / state.Zoom;
    picture.ScaleTop = -picture.ScaleHeight / 2;
    picture.ScaleWidth = picture.Width / state.Zoom;
    picture.ScaleLeft = -picture.ScaleWidth / 2;
    RedrawScene(sim);
}

// The nested run for the 0 shifts nothing and redraws, so a pan draws twice.
void sclUD_Change(Simulation& sim)
{
    sim.picSelvane.ScaleTop -= Value(sim, sclUD);
    Assign(sim, sclUD, 0);
    RedrawIfEnabled(sim);
}

void sclLR_Change(Simulation& sim)
{
    sim.picSelvane.ScaleLeft += Value(sim, sclLR);
    Assign(sim, sclLR, 0);
    RedrawIfEnabled(sim);
}

} // namespace selvane
