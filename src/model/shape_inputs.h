// The orbit's shape: three pairs of bars with their fields and buttons. A handler writes text into
// its field, names the pair that rules and asks for a redraw; it does not compute the orbit. The
// pairs do not update one another, and a typed text moves no bar.
#pragma once

namespace selvane {

struct Simulation;

// Bars in hundreds of km, sclE in hundredths. A bar that passes its partner pushes it along.
void sclPeri_Change(Simulation& sim);
void sclApo_Change(Simulation& sim);
void sclPeriE_Change(Simulation& sim);
void sclE_Change(Simulation& sim);
void sclSMinAxis_Change(Simulation& sim);
void sclSMajAxis_Change(Simulation& sim);

// Take the texts in the pair's fields as they stand and redraw. Only the axes are put in order.
void btnApsisCalculate_Click(Simulation& sim);
void btnECalculate_Click(Simulation& sim);
void btnAxisCalculate_Click(Simulation& sim);

} // namespace selvane
