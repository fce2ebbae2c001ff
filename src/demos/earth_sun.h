// The Earth-Sun orbit: the satellite's orbit keeps its direction in space while that of the Sun
// turns, so the time in the shadow changes through the year.
#pragma once

namespace selvane {

struct Simulation;

// A click on the checked item goes back to the default orbit.
void mnES2_Click(Simulation& sim);
void tmrES2_Timer(Simulation& sim);

} // namespace selvane
