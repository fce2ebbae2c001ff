#include "scene/projection.h"

#include "app/simulation.h"
#include "app/tolerance.h"

#include <cmath>
#include <numbers>

namespace selvane {

namespace {

// The angle of (across, along) by the two-branch rule: from -Pi / 2 up to 3 Pi / 2, and Pi / 2
// where across is exactly 0. No tolerance: a number next to 0 gives the angle of its own quadrant,
// and whatever its sign, the point comes out in the same place.
double TwoBranchAngle(double across, double along)
{
    double angle = across == 0 ? std::numbers::pi / 2 : std::atan(along / across);
    if (across < 0) angle += std::numbers::pi;
    return angle;
}

} // namespace

Projection::Projection(Turn turn)
    : turn_(turn),
      cosY_(std::cos(turn.aboutY)),
      sinY_(std::sin(turn.aboutY)),
      cosZ_(std::cos(turn.aboutZ)),
      sinZ_(std::sin(turn.aboutZ)),
      cosX_(std::cos(turn.aboutX)),
      sinX_(std::sin(turn.aboutX)),
      matricesHold_(std::fabs(turn.aboutZ) < 1e6 && std::fabs(turn.aboutX) < 1e6)
{}

bool Projection::IsSurelyBehind(double radius, double cosInPlane, double sinInPlane) const
{
    const double margin = 1000 * kTolerance * radius;
    const double x1 = radius * cosInPlane * cosY_;
    const double y1 = radius * sinInPlane;
    const double z1 = radius * cosInPlane * sinY_;
    const double y2 = x1 * sinZ_ + y1 * cosZ_;
    const double z = y2 * sinX_ + z1 * cosX_;
    return matricesHold_ && z < -margin && std::fabs(x1) > margin && std::fabs(y2) > margin;
}

Projected Projection::operator()(double radius, double inPlane) const
{
    return (*this)(radius, std::cos(inPlane), std::sin(inPlane));
}

Projected Projection::operator()(double radius, double cosInPlane, double sinInPlane) const
{
    const double x0 = radius * cosInPlane;
    const double y1 = radius * sinInPlane;
    const double x1 = x0 * cosY_;
    const double z1 = x0 * sinY_;

    Projected point{};
    const double rho1 = std::sqrt(x1 * x1 + y1 * y1);
    point.angle1 = TwoBranchAngle(x1, y1);
    point.planeX = rho1 * std::cos(point.angle1 + turn_.aboutZ);
    point.planeY = rho1 * std::sin(point.angle1 + turn_.aboutZ);
    point.planeZ = z1;

    const double rho2 = std::sqrt(point.planeY * point.planeY + z1 * z1);
    point.angle2 = TwoBranchAngle(point.planeY, z1);
    const double size = std::fabs(radius);
    point.x = Snapped(point.planeX, 0, size);
    point.y = Snapped(rho2 * std::cos(point.angle2 + turn_.aboutX), 0, size);
    point.z = Snapped(rho2 * std::sin(point.angle2 + turn_.aboutX), 0, size);
    return point;
}

Projected Project(double radius, double inPlane, Turn turn)
{
    return Projection(turn)(radius, inPlane);
}

bool IsInSight(const Projected& point, double planetRadius)
{
    return point.z > 0 || Snapped(point.Dist(), planetRadius, planetRadius) > planetRadius;
}

bool IsInShadow(const Projected& point, double planetRadius)
{
    const double fromAxis = std::sqrt(point.y * point.y + point.z * point.z);
    return point.x > 0 && Snapped(fromAxis, planetRadius, planetRadius) < planetRadius;
}

void LoadNegativeView(Simulation& sim)
{
    sim.state.ViewDeg = -Number(sim, txtView);
    sim.state.ViewRad = Radians(sim.state, sim.state.ViewDeg);
}

void StoreProjected(SimState& state, const Projected& point)
{
    state.ProjX = point.x;
    state.ProjY = point.y;
    state.ProjZ = point.z;
    state.ProjDist = point.Dist();
    state.ProjPlaneDist = point.PlaneDist();
    state.ProjPlaneZ = point.planeZ;
    state.ProjAngle1 = point.angle1;
    state.ProjAngle2 = point.angle2;
}

Projected XYProjection(Simulation& sim)
{
    SimState& state = sim.state;
    LoadNegativeView(sim);
    const Projected point =
        Project(state.PosRadius, state.PosLat, {state.PosLon, state.PosRoll, state.ViewRad});
    StoreProjected(state, point);
    return point;
}

void XYProjection2(Simulation& sim)
{
    SimState& state = sim.state;
    StoreProjected(state, Project(state.PosRadius, state.GlobePosLat,
                                  {state.GlobePosLon, state.GlobePosRoll, state.GlobeViewRad}));
}

void XYProjectionD(Simulation& sim)
{
    SimState& state = sim.state;
    StoreProjected(state, Project(state.PosRadius, state.DemoPosLat,
                                  {state.DemoPosLon, state.DemoPosRoll, state.DemoViewRad}));
}

void XYProjectionD0(Simulation& sim)
{
    SimState& state = sim.state;
    StoreProjected(state, Project(state.PosRadius, state.DemoPosLat,
                                  {state.SurfPosLon, state.SurfPosRoll, 0}));
}

} // namespace selvane
