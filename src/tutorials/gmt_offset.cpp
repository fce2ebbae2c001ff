#include "tutorials/gmt_offset.h"

#include "app/simulation.h"
#include "tutorials/step_controls.h"

namespace selvane {

void Demo32(Simulation& sim)
{
    sim.picDemo.Cls();
    Enable(sim, tmrTime, true);
    ShowRangeControls(sim);
    NameRange(sim, "GMT Offset", "The difference between GMT and local time.");
}

} // namespace selvane
