// The step in which the student sets the offset between GMT and local time.
#pragma once

namespace selvane {

struct Simulation;

// Step 32: empties picDemo, starts the clock and makes sclRange the control of the GMT offset. The
// picture comes with the clock's first tick.
void Demo32(Simulation& sim);

} // namespace selvane
