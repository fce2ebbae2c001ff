#include "app/sim_state.h"

#include <cmath>

namespace selvane {

bool SatelliteFlies(Scenario scenario)
{
    return scenario == Scenario::ES1 || scenario == Scenario::Geo || scenario == Scenario::Moly;
}

bool IsSunCentred(Scenario scenario)
{
    return scenario == Scenario::ES2 || scenario == Scenario::SunSynch;
}

std::string_view Text(Scenario scenario)
{
    switch (scenario) {
    case Scenario::None:
        break;
    case Scenario::ES1:
        return "ES1";
    case Scenario::Geo:
        return "Geo";
    case Scenario::Moly:
        return "Moly";
    case Scenario::ES2:
        return "ES2";
    case Scenario::SunSynch:
        return "SunSynch";
    case Scenario::Tutorial:
        return "Tutorial";
    }
    return "";
}

std::string_view Text(ShapePair pair)
{
    switch (pair) {
    case ShapePair::None:
        break;
    case ShapePair::Axis:
        return "Axis";
    case ShapePair::Apsis:
        return "Apsis";
    case ShapePair::E:
        return "E";
    }
    return "";
}

std::string_view Text(SceneKey key)
{
    switch (key) {
    case SceneKey::None:
        break;
    case SceneKey::Demo0:
        return "Demo0";
    case SceneKey::Demo1:
        return "Demo1";
    case SceneKey::Demo2:
        return "Demo2";
    case SceneKey::Demo3:
        return "Demo3";
    case SceneKey::Demo31:
        return "Demo31";
    case SceneKey::Demo32:
        return "Demo32";
    }
    return "";
}

double Radians(const SimState& state, double degrees)
{
    const double radians = degrees * state.Pi / 180;
    // A typed angle can be so large that the product overflows where the result would not.
    return std::isfinite(radians) ? radians : degrees / 180 * state.Pi;
}

} // namespace selvane
