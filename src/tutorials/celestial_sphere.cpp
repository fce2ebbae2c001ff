#include "tutorials/celestial_sphere.h"

#include "app/number_text.h"
#include "app/simulation.h"
#include "scene/projection.h"
#include "tutorials/strokes.h"

#include <cmath>

namespace selvane {

namespace {

// The pole lines keep Earth's direction on every planet.
constexpr double kNorthPoleDeg = 66.6;
constexpr double kSouthPoleDeg = -113.4;

// Black in the centre, brightest at the rim.
Colour RingColour(double ring, double pi)
{
    const double shine = std::pow(std::sin(ring * pi / 200), 4);
    const int grey = static_cast<int>(RoundHalfEven(31 * shine));
    return RGB(grey, grey, static_cast<int>(RoundHalfEven(79 * shine)));
}

// The diameter that ecliptic and equator share, and the equator's diameter across it.
void Diameters(Simulation& sim, double tilt, double view)
{
    const double along = kSphereRadius * std::cos(view);
    const double x = kSphereRadius * std::cos(tilt);
    const double y = kSphereRadius * std::sin(tilt) * std::sin(view);
    sim.picDemo.ForeColor = kDarkGrey;
    sim.picDemo.Line(0, -along, 0, along);
    sim.picDemo.Line(-x, y, x, -y);
}

void CirclesThroughThePoles(Simulation& sim)
{
    const SimState& state = sim.state;
    DemoPlane(sim, 90 - state.PlanetTilt, 0);
    DemoArc(sim, 0, 360, 1);
    DemoPlane(sim, 90 - state.PlanetTilt * std::cos(Radians(state, 90)), 90);
    DemoArc(sim, 0, 360, 1);
}

// Each of the two main circles is bright in its near half and dark in its far half.
void CelestialEquator(Simulation& sim, double tilt, double view)
{
    sim.picDemo.ForeColor = RGB(127, 127, 255);
    DemoPlane(sim, -sim.state.PlanetTilt, 0);
    DemoArc(sim, 180, 360, 0.5);
    TextAt(sim.picDemo, kSphereRadius * std::cos(tilt),
           8 - kSphereRadius * std::sin(tilt) * std::sin(view), " Celestial Equator");
    sim.picDemo.ForeColor = RGB(63, 63, 191);
    DemoArc(sim, 0, 180, 0.5);
}

void Ecliptic(Simulation& sim)
{
    sim.picDemo.ForeColor = kSunYellow;
    DemoPlane(sim, 0, 0);
    DemoArc(sim, 180, 360, 0.5);
    TextAt(sim.picDemo, kSphereRadius, 8, " Ecliptic");
    sim.picDemo.ForeColor = RGB(159, 159, 0);
    DemoArc(sim, 0, 180, 0.5);
}

void CelestialPole(Simulation& sim, double axisDeg, double viewFactor)
{
    const double axis = Radians(sim.state, axisDeg);
    const double x = std::cos(axis);
    const double y = std::sin(axis);
    DemoPolarLine(sim, kSphereRadius * x, kSphereRadius * y * viewFactor, kPoleLineEnd * x,
                  kPoleLineEnd * y * viewFactor);
}

void CelestialPoles(Simulation& sim, double viewFactor)
{
    const SimState& state = sim.state;
    CelestialPole(sim, kNorthPoleDeg, viewFactor);
    TextAt(sim.picDemo, state.PoleX2 - 45, state.PoleY2 + 6 + 6 * viewFactor,
           "North Celestial Pole");
    CelestialPole(sim, kSouthPoleDeg, viewFactor);
    TextAt(sim.picDemo, state.PoleX2 - 45, state.PoleY2 + 6 - 6 * viewFactor,
           "South Celestial Pole");
}

} // namespace

double DemoView(const Simulation& sim)
{
    return Radians(sim.state, Number(sim, txtViewD));
}

void DemoBackdrop(Simulation& sim)
{
    SimState& state = sim.state;
    Picture& picture = sim.picDemo;
    state.CurPic = PictureId::picDemo;
    picture.Cls();
    state.PosRadius = kSphereRadius;
    state.DemoViewDeg = Number(sim, txtViewD);
    state.DemoViewRad = DemoView(sim);
    picture.FillStyle = Fill::Transparent;
    for (double ring = 0; ring <= kSphereRadius; ++ring) {
        picture.ForeColor = RingColour(ring, state.Pi);
        picture.Circle(0, 0, ring);
    }
    picture.ForeColor = kDarkGrey;
    picture.Circle(0, 0, kSphereRadius);
}

void DemoPlane(Simulation& sim, double lonDeg, double rollDeg)
{
    SimState& state = sim.state;
    state.DemoRollDeg = rollDeg;
    state.DemoPosRoll = Radians(state, rollDeg);
    state.DemoLonDeg = lonDeg;
    state.DemoPosLon = Radians(state, lonDeg);
    state.DemoViewDeg = -Number(sim, txtViewD);
    state.DemoViewRad = Radians(state, state.DemoViewDeg);
}

void DemoArc(Simulation& sim, double fromDeg, double toDeg, double stepDeg)
{
    SimState& state = sim.state;
    const Projection project({state.DemoPosLon, state.DemoPosRoll, state.DemoViewRad});
    Projected point{};
    for (state.DemoLatDeg = fromDeg; state.DemoLatDeg <= toDeg; state.DemoLatDeg += stepDeg) {
        state.DemoPosLat = Radians(state, state.DemoLatDeg);
        point = project(state.PosRadius, state.DemoPosLat);
        sim.picDemo.PSet(point.x, point.y);
    }
    StoreProjected(state, point);
}

void DemoPolarLine(Simulation& sim, double x1, double y1, double x2, double y2)
{
    SimState& state = sim.state;
    state.PoleX1 = x1;
    state.PoleY1 = y1;
    state.PoleX2 = x2;
    state.PoleY2 = y2;
    sim.picDemo.ForeColor = kDarkGrey;
    sim.picDemo.Line(0, 0, x1, y1);
    sim.picDemo.ForeColor = kLightGrey;
    sim.picDemo.Line(x1, y1, x2, y2);
}

void Demo0(Simulation& sim)
{
    const double view = DemoView(sim);
    const double tilt = Radians(sim.state, sim.state.PlanetTilt);
    DemoBackdrop(sim);
    Diameters(sim, tilt, view);
    CirclesThroughThePoles(sim);
    CelestialEquator(sim, tilt, view);
    Ecliptic(sim);
    CelestialPoles(sim, std::sin(view));
}

} // namespace selvane
