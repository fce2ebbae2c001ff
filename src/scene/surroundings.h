// What both globes have round them: reference lines, Sun, sunlight and pole markers.
#pragma once

namespace selvane {

struct Picture;
struct SimState;
struct Simulation;

// A grey cross through the Sun and one through the planet. Their far ends use the numbers
// ScaleWidth and ScaleHeight as coordinates. Reads SunX, SunY, PlanetX, PlanetY.
void ReferenceLines(const SimState& state, Picture& picture);

// The yellow of the Sun, the Sun's disc and the line of sunlight to the planet. A Sun at the edge
// stands on x = -ScaleWidth / 2; otherwise at SunX, SunY.
enum class SunPlace { Edge, Origin, Nowhere };
void SunAndSunlight(Simulation& sim, SunPlace place);

// A pole marker: a line on the planet's axis from the rim outward, with a letter at its end. Its
// place does not go through the projection: axisDeg is the direction in the plane of the axis,
// viewFactor the sine of the view angle. Writes PoleX1 to PoleY2.
void NorthMarker(Simulation& sim, double axisDeg, double viewFactor);
void SouthMarker(Simulation& sim, double viewFactor);

// The marker of the pole that is turned away from the viewer, and of the one turned towards him.
// Judged by the sign that ViewDeg has at the moment; at exactly a quarter turn both are drawn, and
// outside a full turn none.
void MarkersBehind(Simulation& sim, double northAxisDeg, double viewFactor);
void MarkersInFront(Simulation& sim);

} // namespace selvane
