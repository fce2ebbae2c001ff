#include "qt/picture_words.h"

#include "app/number_text.h"
#include "app/simulation.h"

namespace selvane {

namespace {

std::string Whole(double number)
{
    return FixedNumber(number, 0);
}

std::string SatelliteWords(const Simulation& sim)
{
    const Marker& marker = sim.controls.lblSat;
    const SimState& state = sim.state;
    if (!IsChecked(sim, mnViewSatellite)) return "The satellite is not shown.";
    if (!marker.left) return "The satellite has not been placed yet.";
    std::string light = ", sunlit.";
    if (!marker.visible)
        light = ", hidden behind the planet.";
    else if (marker.back != kWhite)
        light = ", in the planet's shadow.";
    return "The satellite is at latitude " + Whole(state.SatLat) + ", longitude " +
           Whole(state.SatLon) + " degrees, true anomaly " + Whole(state.TrueAnomaly) + " degrees" +
           light;
}

std::string SceneWords(const SimState& state)
{
    if (IsSunCentred(state.OrbitMode))
        return state.PlanetName + " on its way round the Sun, at " + Whole(state.HelioDeg) +
               " degrees, with the orbit of its satellite.";
    return state.PlanetName + " with the orbit of its satellite; the Sun is at the left.";
}

std::string_view StepWords(SceneKey key)
{
    switch (key) {
    case SceneKey::None:
        break;
    case SceneKey::Demo0:
        return "Reference Frames, step 1 of 4: the celestial sphere with its equator, the ecliptic "
               "and the celestial poles.";
    case SceneKey::Demo1:
        return "Reference Frames, step 2 of 4: the planet from above its north pole, with the axes "
               "X, Y and Z.";
    case SceneKey::Demo2:
        return "Reference Frames, step 3 of 4: right ascension, declination and radius of a point.";
    case SceneKey::Demo3:
        return "Reference Frames, step 4 of 4: longitude, latitude and radius of a point.";
    case SceneKey::Demo31:
        return "Time Standards, step 1 of 2: the Earth at two places on its way round the Sun, for "
               "solar and sidereal days.";
    case SceneKey::Demo32:
        return "Time Standards, step 2 of 2: a clock with the Earth on the dial of the year.";
    }
    return "";
}

} // namespace

std::string DescribeMainPicture(const Simulation& sim)
{
    std::string words = SceneWords(sim.state);
    if (SatelliteFlies(sim.state.OrbitMode)) words += " " + SatelliteWords(sim);
    return words;
}

std::string DescribeTutorialPicture(const Simulation& sim)
{
    if (!IsChecked(sim, mnSatelliteTracking) && !IsChecked(sim, mnTimeStandards))
        return "No tutorial is open.";
    return std::string(StepWords(sim.state.CurrentDemo));
}

} // namespace selvane
