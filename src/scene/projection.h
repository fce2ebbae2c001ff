// Turns a point of a tilted plane into a place on the picture.
// Axes, right-handed: x right, y up, z out of the screen towards the viewer.
// Lengths in display units, angles in radians. The projection's centre is the origin: a caller adds
// the centre of the body that it draws.
#pragma once

#include "app/projected_path.h"

namespace selvane {

struct Simulation;
struct SimState;

// A turn whose fixed sine and cosine are worked out once for all points of a ring.
class Projection
{
public:
    explicit Projection(Turn turn);

    // The point at that distance and angle in the plane. Radius 0 gives the origin. A point exactly
    // on the negative y side takes the angle Pi / 2: the arctangent has two branches, not four.
    Projected operator()(double radius, double inPlane) const;

    // The same with the sine and cosine of the angle in the plane worked out beforehand.
    Projected operator()(double radius, double cosInPlane, double sinInPlane) const;

    // True only where the projected point has z < 0, judged by plain rotation matrices at a
    // fraction of the cost. False wherever the tolerance or the two-branch rule could decide
    // otherwise.
    bool IsSurelyBehind(double radius, double cosInPlane, double sinInPlane) const;

private:
    Turn turn_;
    double cosY_, sinY_, cosZ_, sinZ_, cosX_, sinX_;
    bool matricesHold_; // the turns are small enough for a sum of angles to keep its digits
};

Projected Project(double radius, double inPlane, Turn turn);

// Whether a point can be seen past a planet of that radius in the centre: it lies in front of the
// plane through the centre, or outside the disc. A point on the limb itself lies behind it.
bool IsInSight(const Projected& point, double planetRadius);

// Whether it lies in the planet's shadow: a cylinder of the planet's radius along +x, the Sun being
// on the -x side. A point on the cylinder's surface is lit.
bool IsInShadow(const Projected& point, double planetRadius);

// The orbit. Reads PosRadius, PosLat, PosLon, PosRoll and the number in txtView.
// Writes ViewDeg, ViewRad (minus that number) and the outputs ProjX to ProjAngle2; returns these.
Projected XYProjection(Simulation& sim);

// The turning globe. Reads PosRadius and the Globe angles; writes the outputs.
void XYProjection2(Simulation& sim);

// The tutorial scenes. Reads PosRadius and the Demo angles; writes the outputs.
void XYProjectionD(Simulation& sim);

// The polar axes scene, which is not tilted. Reads PosRadius, DemoPosLat and the Surf angles;
// writes the outputs.
void XYProjectionD0(Simulation& sim);

// Writes the outputs ProjX to ProjAngle2.
void StoreProjected(SimState& state, const Projected& point);

// Sets ViewDeg and ViewRad to minus the number in txtView.
void LoadNegativeView(Simulation& sim);

} // namespace selvane
