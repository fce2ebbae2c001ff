#include "scene/surroundings.h"

#include "app/simulation.h"

#include <cmath>
#include <string_view>

namespace selvane {

namespace {

constexpr double kMarkerLength = 20; // display units

bool Between(double value, double low, double high)
{
    return value >= low && value <= high;
}

bool IsBackView(double viewDeg)
{
    return Between(viewDeg, 90, 270) || Between(viewDeg, -270, -90);
}

bool IsFrontView(double viewDeg)
{
    return Between(viewDeg, -90, 90) || Between(viewDeg, 270, 360) || Between(viewDeg, -360, -270);
}

// PoleY1 and PoleY2 hold the screen's y with the sign turned round.
void MarkerLine(Simulation& sim, double axisDeg, double viewFactor)
{
    SimState& state = sim.state;
    const double axis = Radians(state, axisDeg);
    const double inner = state.PlanetPx;
    const double outer = state.PlanetPx + kMarkerLength;
    state.PoleX1 = inner * std::cos(axis) + state.PlanetX;
    state.PoleX2 = outer * std::cos(axis) + state.PlanetX;
    state.PoleY1 = inner * std::sin(axis) * viewFactor - state.PlanetY;
    state.PoleY2 = outer * std::sin(axis) * viewFactor - state.PlanetY;
    sim.picSelvane.ForeColor = kWhite;
    sim.picSelvane.Line(state.PoleX1, -state.PoleY1, state.PoleX2, -state.PoleY2);
}

void MarkerLetter(Simulation& sim, double x, double y, std::string_view letter)
{
    sim.picSelvane.MoveTo(x, y);
    sim.picSelvane.Print(letter);
    sim.picSelvane.ForeColor = RGB(191, 191, 191);
}

} // namespace

void ReferenceLines(const SimState& state, Picture& picture)
{
    const Colour grey = RGB(95, 95, 95);
    picture.Line(picture.ScaleLeft, state.SunY, picture.ScaleWidth, state.SunY, grey);
    picture.Line(state.SunX, picture.ScaleTop, state.SunX, picture.ScaleHeight, grey);
    picture.Line(state.PlanetX, picture.ScaleTop, state.PlanetX, picture.ScaleHeight, grey);
    picture.Line(picture.ScaleLeft, state.PlanetY, picture.ScaleWidth, state.PlanetY, grey);
}

void SunAndSunlight(Simulation& sim, SunPlace place)
{
    const SimState& state = sim.state;
    Picture& picture = sim.picSelvane;
    const Colour yellow = RGB(255, 255, 127);
    const Colour rim = RGB(127, 127, 0);
    picture.ForeColor = picture.FillColor = yellow;
    if (place == SunPlace::Edge) picture.Circle(-picture.ScaleWidth / 2, 0, state.PlanetPx, rim);
    if (place == SunPlace::Origin) picture.Circle(state.SunX, state.SunY, state.PlanetPx, rim);
    picture.Line(state.SunX, state.SunY, state.PlanetX, state.PlanetY, yellow);
    picture.ForeColor = RGB(191, 191, 191);
}

void NorthMarker(Simulation& sim, double axisDeg, double viewFactor)
{
    MarkerLine(sim, axisDeg, viewFactor);
    MarkerLetter(sim, sim.state.PoleX2, -sim.state.PoleY2 + 6 - 6 * viewFactor, "N");
}

void SouthMarker(Simulation& sim, double viewFactor)
{
    MarkerLine(sim, -90 - sim.state.PlanetTilt, viewFactor);
    MarkerLetter(sim, sim.state.PoleX2 - 8, -sim.state.PoleY2 + 6 + 8 * viewFactor, "S");
}

void MarkersBehind(Simulation& sim, double northAxisDeg, double viewFactor)
{
    const double viewDeg = sim.state.ViewDeg;
    if (IsBackView(viewDeg)) NorthMarker(sim, northAxisDeg, viewFactor);
    if (IsFrontView(viewDeg)) SouthMarker(sim, viewFactor);
}

void MarkersInFront(Simulation& sim)
{
    const double viewDeg = sim.state.ViewDeg;
    const double viewFactor = std::sin(sim.state.ViewRad);
    if (IsFrontView(viewDeg)) NorthMarker(sim, 90 - sim.state.PlanetTilt, viewFactor);
    if (IsBackView(viewDeg)) SouthMarker(sim, viewFactor);
}

} // namespace selvane
