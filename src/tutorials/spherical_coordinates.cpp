#include "tutorials/spherical_coordinates.h"

#include "app/simulation.h"
#include "scene/projection.h"
#include "tutorials/celestial_sphere.h"
#include "tutorials/strokes.h"

#include <cmath>

namespace selvane {

namespace {

// Both arcs span 60 degrees, from the reference direction at 270.
constexpr double kArcFrom = 270;
constexpr double kArcTo = 330;

struct Names
{
    std::string_view reference, upward, along;
};

Names NamesOf(SceneKey key)
{
    return key == SceneKey::Demo3 ? Names{"PM", "Lat", "Lon"} : Names{"VE", "Dec", "RA"};
}

void PolarAxisAndHorizontal(Picture& picture)
{
    picture.ForeColor = kDarkGrey;
    picture.Line(0, -kSphereRadius, 0, kSphereRadius);
    picture.Line(-kSphereRadius, 0, kSphereRadius, 0);
}

void CirclesThroughThePoles(Simulation& sim)
{
    DemoPlane(sim, 90, 0);
    DemoArc(sim, 0, 360, 1);
    DemoPlane(sim, 90, 90);
    DemoArc(sim, 0, 360, 1);
}

void CelestialEquator(Simulation& sim)
{
    sim.picDemo.ForeColor = RGB(127, 127, 255);
    DemoPlane(sim, 0, 0);
    DemoArc(sim, 180, 360, 0.5);
    TextAt(sim.picDemo, kSphereRadius, 8, " Celestial Equator");
    sim.picDemo.ForeColor = RGB(63, 63, 191);
    DemoArc(sim, 0, 180, 0.5);
}

void Poles(Simulation& sim, double viewFactor)
{
    const double inner = kSphereRadius * viewFactor;
    const double outer = kPoleLineEnd * viewFactor;
    DemoPolarLine(sim, 0, inner, 0, outer);
    TextAt(sim.picDemo, -4, outer + 6 + 6 * viewFactor, "N");
    DemoPolarLine(sim, 0, -inner, 0, -outer);
    TextAt(sim.picDemo, -2, -outer + 6 - 6 * viewFactor, "S");
}

void ReferenceDirection(Picture& picture, double view, std::string_view name)
{
    const double outer = -kPoleLineEnd * std::cos(view);
    picture.Line(0, -kSphereRadius * std::cos(view), 0, outer);
    TextAt(picture, -6, outer + 6 - 6 * std::sin(view), name);
}

void Radius(Simulation& sim, Colour colour)
{
    sim.picDemo.ForeColor = colour;
    sim.picDemo.Line(0, 0, sim.state.ProjX, sim.state.ProjY);
}

void ProjectAt(Simulation& sim, double latDeg)
{
    sim.state.DemoLatDeg = latDeg;
    sim.state.DemoPosLat = Radians(sim.state, latDeg);
    XYProjectionD(sim);
}

// Its inside takes the fill colour that the picture has from the scene before.
void SamplePoint(Simulation& sim)
{
    Picture& picture = sim.picDemo;
    picture.ForeColor = kWhite;
    DemoPlane(sim, 90, 60);
    ProjectAt(sim, kArcTo);
    picture.FillStyle = Fill::Solid;
    picture.Circle(sim.state.ProjX, sim.state.ProjY, 2);
    picture.FillStyle = Fill::Transparent;
    Radius(sim, kDarkGrey);
}

// The fan under an arc; the projected point is left at the arc's end.
void DemoSpokes(Simulation& sim)
{
    for (double spoke = kArcFrom; spoke <= kArcTo; spoke += 5) {
        ProjectAt(sim, spoke);
        Radius(sim, kDarkGrey);
    }
}

void MeasuredArc(Simulation& sim, double lonDeg, double rollDeg)
{
    sim.picDemo.ForeColor = kWhite;
    DemoPlane(sim, lonDeg, rollDeg);
    DemoArc(sim, kArcFrom, kArcTo, 0.5);
    DemoSpokes(sim);
}

void ArcUpTheMeridian(Simulation& sim, std::string_view name)
{
    const SimState& state = sim.state;
    MeasuredArc(sim, 90, 60);
    Radius(sim, kLightGrey);
    TextAt(sim.picDemo, state.ProjX / 2, state.ProjY / 2, "R");
    TextAt(sim.picDemo, state.ProjX + 2, state.ProjY + 12, name);
}

void ArcAlongTheEquator(Simulation& sim, std::string_view name)
{
    const SimState& state = sim.state;
    MeasuredArc(sim, 0, 0);
    sim.picDemo.ForeColor = kLightGrey;
    TextAt(sim.picDemo, state.ProjX + 2, state.ProjY + 2, name);
    Radius(sim, RGB(127, 127, 127));
}

} // namespace

void Demo2(Simulation& sim)
{
    const double view = DemoView(sim);
    const Names names = NamesOf(sim.state.CurrentDemo);
    DemoBackdrop(sim);
    PolarAxisAndHorizontal(sim.picDemo);
    CirclesThroughThePoles(sim);
    CelestialEquator(sim);
    Poles(sim, std::sin(view));
    ReferenceDirection(sim.picDemo, view, names.reference);
    SamplePoint(sim);
    ArcUpTheMeridian(sim, names.upward);
    ArcAlongTheEquator(sim, names.along);
}

} // namespace selvane
