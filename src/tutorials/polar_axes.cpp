#include "tutorials/polar_axes.h"

#include "app/simulation.h"
#include "scene/planet_disc.h"
#include "scene/ring.h"
#include "scene/surroundings.h"
#include "tutorials/strokes.h"

namespace selvane {

namespace {

constexpr double kDiscRadius = 60;

void PlaceBodies(Simulation& sim)
{
    SimState& state = sim.state;
    state.PlanetPx = kDiscRadius;
    state.PlanetX = state.PlanetY = 0;
    state.SunX = -sim.picDemo.ScaleWidth / 2;
    state.SunY = 0;
    state.ViewDeg = state.ViewRad = 0;
}

// The near half of the meridian that is seen edge-on from the pole.
void DottedDiameter(Simulation& sim)
{
    SimState& state = sim.state;
    state.SurfLonDeg = 90;
    state.SurfPosLon = Radians(state, state.SurfLonDeg);
    state.SurfRollDeg = state.SurfPosRoll = 0;
    state.PosRadius = state.PlanetPx;
    Ring ring;
    MakeRing(WholeDegrees(), {state.PosRadius, {state.SurfPosLon, state.SurfPosRoll, 0}}, ring);
    PlotNearHalf(sim.picDemo, ring, state.PlanetX, state.PlanetY);
    state.DemoLatDeg = kRingPoints;
    state.DemoPosLat = WholeDegrees().back().radians;
    StoreProjected(state, ring.last);
}

void Axes(DrawingSurface& picture, double radius)
{
    picture.ForeColor = kWhite;
    TextAt(picture, -6, -radius - 24, "VE");
    picture.Line(0, -radius, 0, -radius - 10);
    TextAt(picture, -3, -radius - 12, "X");
    picture.Line(radius, 0, radius + 10, 0);
    TextAt(picture, radius + 12, 6, "Y");
    TextAt(picture, -3, 6, "Z (N)");
}

} // namespace

void Demo1(Simulation& sim)
{
    DrawingSurface& picture = sim.picDemo;
    sim.state.CurPic = &picture;
    picture.Cls();
    picture.FillStyle = Fill::Solid;
    PlaceBodies(sim);
    ReferenceLines(sim.state, picture);
    BarePlanetD(sim);
    picture.ForeColor = RGB(159, 159, 159);
    DottedDiameter(sim);
    picture.Line(-kDiscRadius, 0, kDiscRadius, 0);
    Axes(picture, kDiscRadius);
}

} // namespace selvane
