#include "demos/sun_synchronous.h"

#include "demos/default_orbit.h"
#include "demos/sun_scene.h"
#include "model/satellite_motion.h"

namespace selvane {

namespace {

constexpr SunScene kSunSynchronous{Scenario::SunSynch,
                                   mnSunSynch,
                                   tmrSunSynch,
                                   {10, 98, std::nullopt, 0, 0, 8, 8},
                                   "SunSynch.rtf"};

} // namespace

void mnSunSynch_Click(Simulation& sim)
{
    if (IsChecked(sim, mnSunSynch)) {
        Check(sim, mnSunSynch, false);
        ResetOrbit(sim);
    } else {
        EnterSunScene(sim, kSunSynchronous);
    }
    btnPlay_Click(sim);
}

void tmrSunSynch_Timer(Simulation& sim)
{
    AdvanceHalfADegree(sim);
}

} // namespace selvane
