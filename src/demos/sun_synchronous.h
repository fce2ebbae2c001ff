// The sun-synchronous orbit: its plane turns with the line to the Sun and keeps its angle to it
// all year.
#pragma once

namespace selvane {

struct Simulation;

// A click on the checked item goes back to the default orbit. Both ways end in play.
void mnSunSynch_Click(Simulation& sim);
void tmrSunSynch_Timer(Simulation& sim);

} // namespace selvane
