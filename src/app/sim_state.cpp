#include "app/sim_state.h"

#include <cmath>

namespace selvane {

double Radians(const SimState& state, double degrees)
{
    const double radians = degrees * state.Pi / 180;
    // A typed angle can be so large that the product overflows where the result would not.
    return std::isfinite(radians) ? radians : degrees / 180 * state.Pi;
}

} // namespace selvane
