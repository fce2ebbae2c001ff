// The celestial sphere from outside, and the strokes that it shares with the spherical
// coordinates. Everything is drawn on picDemo, the sphere centred on the origin.
// Angles in degrees, lengths in the picture's units.
#pragma once

namespace selvane {

struct Simulation;

inline constexpr double kSphereRadius = 100;
inline constexpr double kPoleLineEnd = 120; // where the polar axis ends outside the sphere

// Step 20: sphere, celestial equator, ecliptic and celestial poles, seen at the angle in txtViewD.
// Reads PlanetTilt. Writes CurPic and the scratch of the Demo projection; leaves FillStyle
// transparent.
void Demo0(Simulation& sim);

// The view angle, radians: the number in txtViewD. 0 looks down on the main circle, 90 degrees
// sees it edge-on; typed numbers outside that are used as they are.
double DemoView(const Simulation& sim);

// Clears the picture and draws the shaded sphere. The view fields hold the angle as typed.
void DemoBackdrop(Simulation& sim);

// The plane of the next arc: its tilt about y and its turn about z. The view fields hold minus the
// angle typed: the arcs are tilted the other way than the lines that come before them.
void DemoPlane(Simulation& sim, double lonDeg, double rollDeg);

// A dotted arc in the picture's ForeColor, both ends included. The projected point of the end is
// left in ProjX to ProjZ.
void DemoArc(Simulation& sim, double fromDeg, double toDeg, double stepDeg);

// A dark line from the centre to (x1, y1) and a light one on to (x2, y2); the light colour stays
// for the label. Writes PoleX1 to PoleY2.
void DemoPolarLine(Simulation& sim, double x1, double y1, double x2, double y2);

} // namespace selvane
