#include "demos/earth_sun.h"

#include "demos/default_orbit.h"
#include "demos/sun_scene.h"

namespace selvane {

namespace {

constexpr SunScene kEarthSun{
    Scenario::ES2, mnES2, tmrES2, {10, 75, std::nullopt, 0, 0, 6, 32}, "EarthSun.rtf"};

} // namespace

void mnES2_Click(Simulation& sim)
{
    if (IsChecked(sim, mnES2)) {
        Check(sim, mnES2, false);
        ResetOrbit(sim);
        return;
    }
    EnterSunScene(sim, kEarthSun);
}

void tmrES2_Timer(Simulation& sim)
{
    AdvanceHalfADegree(sim);
}

} // namespace selvane
