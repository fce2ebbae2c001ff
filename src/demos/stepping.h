// Single steps by hand, forward and back: of the satellite where it flies, of the planet where it
// travels round the Sun. They leave timers and the play button alone.
#pragma once

namespace selvane {

struct Simulation;

void btnAdvance_Click(Simulation& sim);
void btnReverse_Click(Simulation& sim);

} // namespace selvane
