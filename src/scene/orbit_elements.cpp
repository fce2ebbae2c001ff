#include "scene/orbit_elements.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace selvane {

namespace {

constexpr double kLargestAxis = 1e12; // km; far beyond any planet's reach

constexpr std::string_view kNoNumber = "Both semi-axes must be numbers.";
constexpr std::string_view kAxisOrder =
    "The semi-minor axis must be above 0 and not above the semi-major axis.";
constexpr std::string_view kNotClosed = "The eccentricity must lie between -1 and 1.";
constexpr std::string_view kNoAxis = "The semi-major axis must be above 0.";
constexpr std::string_view kTooLarge = "The orbit is too large.";

// The reason why an axis and an eccentricity are no closed orbit; empty when they are one. The
// comparisons are written so that nan fails them.
std::string_view Fault(double semiMajor, double eccentricity)
{
    if (!(std::fabs(eccentricity) < 1)) return kNotClosed;
    if (!(semiMajor > 0)) return kNoAxis;
    if (!(semiMajor <= kLargestAxis)) return kTooLarge;
    return {};
}

OrbitReading Checked(const OrbitElements& elements)
{
    const std::string_view fault = Fault(elements.semiMajor, elements.eccentricity);
    if (!fault.empty()) return {std::nullopt, fault};
    return {elements, {}};
}

} // namespace

OrbitReading FromAxes(std::optional<double> semiMajor, std::optional<double> semiMinor,
                      double planetRadius)
{
    if (!semiMajor || !semiMinor) return {std::nullopt, kNoNumber};
    OrbitElements orbit{};
    orbit.semiMajor = std::floor(*semiMajor);
    orbit.semiMinor = std::floor(*semiMinor);
    if (!(orbit.semiMinor > 0) || orbit.semiMinor > orbit.semiMajor)
        return {std::nullopt, kAxisOrder};
    orbit.focus = std::sqrt(orbit.semiMajor * orbit.semiMajor - orbit.semiMinor * orbit.semiMinor);
    orbit.eccentricity = orbit.focus / orbit.semiMajor;
    orbit.periapsis = orbit.semiMajor - orbit.focus - planetRadius;
    orbit.apoapsis = 2 * orbit.semiMajor - 2 * planetRadius - orbit.periapsis;
    return Checked(orbit);
}

OrbitReading FromApsides(double periapsis, double apoapsis, double planetRadius)
{
    OrbitElements orbit{};
    orbit.periapsis = periapsis;
    orbit.apoapsis = apoapsis;
    orbit.focus = (apoapsis - periapsis) / 2;
    orbit.semiMajor = orbit.focus + planetRadius + periapsis;
    // Judged before it is divided by, so that a vanishing axis is named as such.
    if (!(orbit.semiMajor > 0)) return {std::nullopt, kNoAxis};
    orbit.semiMinor = std::sqrt(orbit.semiMajor * orbit.semiMajor - orbit.focus * orbit.focus);
    orbit.eccentricity = orbit.focus / orbit.semiMajor;
    return Checked(orbit);
}

OrbitReading FromEccentricity(double periapsis, double eccentricity, double planetRadius)
{
    OrbitElements orbit{};
    orbit.periapsis = periapsis;
    orbit.eccentricity = eccentricity;
    orbit.semiMajor = (planetRadius + periapsis) / (1 - eccentricity);
    orbit.semiMinor = orbit.semiMajor * std::sqrt(1 - eccentricity * eccentricity);
    orbit.focus = eccentricity * orbit.semiMajor;
    orbit.apoapsis = orbit.focus + orbit.semiMajor - planetRadius;
    return Checked(orbit);
}

double RadiusAt(double semiMajor, double eccentricity, double angleFromApoapsis)
{
    return semiMajor * (1 - eccentricity * eccentricity) /
           (1 - eccentricity * std::cos(angleFromApoapsis));
}

double AngularRate(double planetMu, double radius, double semiMajor)
{
    // At the far end of a needle-thin orbit the difference can round to nothing or below it.
    const double smallest = std::numeric_limits<double>::epsilon() / 2 / semiMajor;
    const double visViva = std::max(2 / radius - 1 / semiMajor, smallest);
    return std::sqrt(planetMu * visViva) / radius;
}

double Period(double planetMu, double semiMajor, double pi)
{
    return 2 * pi * std::sqrt(semiMajor * semiMajor * semiMajor / planetMu);
}

} // namespace selvane
