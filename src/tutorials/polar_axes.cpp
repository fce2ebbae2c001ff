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
    const Turn turn{state.SurfPosLon, state.SurfPosRoll, 0};
    const Projected last = PlotNearHalf(sim.picDemo, kWholeDegrees, {state.PosRadius, turn},
                                        {state.PlanetX, state.PlanetY});
    state.DemoLatDeg = kRingPoints;
    state.DemoPosLat = kWholeDegrees.back().radians;
    StoreProjected(state, last);
}

void Axes(Picture& picture, double radius)
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
    Picture& picture = sim.picDemo;
    sim.state.CurPic = PictureId::picDemo;
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
