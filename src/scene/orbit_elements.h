// The two-body formulas behind the orbit: elements from a pair of inputs, radius and rates at an
// angle. Pure; km, seconds and degrees unless said. Kepler ellipse and vis-viva equation as in any
// textbook of astrodynamics (Bate, Mueller, White: Fundamentals of Astrodynamics, chapter 1).
#pragma once

#include <optional>
#include <string_view>

namespace selvane {

struct OrbitElements
{
    double semiMajor, semiMinor; // km
    double focus;                // km from the centre to the focus
    double eccentricity;         // above -1, below 1; negative when the apsides have changed ends
    double periapsis, apoapsis;  // km above the surface
};

// An orbit, or the reason why the inputs describe none, in words for the user.
struct OrbitReading
{
    std::optional<OrbitElements> elements;
    std::string_view fault;
};

// From the semi-axes, whole km after a floor. Nothing in a field means that it holds no number.
OrbitReading FromAxes(std::optional<double> semiMajor, std::optional<double> semiMinor,
                      double planetRadius);

// From the altitudes of the apsides, in either order.
OrbitReading FromApsides(double periapsis, double apoapsis, double planetRadius);

// From the altitude of the periapsis and the eccentricity.
OrbitReading FromEccentricity(double periapsis, double eccentricity, double planetRadius);

// Distance from the focus at an angle (radians) from the direction of the largest radius. In the
// unit of the semi-major axis.
double RadiusAt(double semiMajor, double eccentricity, double angleFromApoapsis);

// Speed over distance, radians per second, at that distance (km): vis-viva, the whole speed
// counted as transverse. Positive and finite for every orbit.
double AngularRate(double planetMu, double radius, double semiMajor);

// Seconds for one revolution.
double Period(double planetMu, double semiMajor, double pi);

} // namespace selvane
