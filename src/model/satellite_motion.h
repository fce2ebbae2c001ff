// Runs the satellite along the orbit. The angle along the orbit advances by a degree a tick; what
// changes is the length of the tick: four milliseconds for each second that the degree takes.
#pragma once

namespace selvane {

struct Simulation;

// One step at the present SatDeg: rates, energies, the timer's interval, the satellite's read-outs,
// the marker and, where the satellite flies, a new frame. Reads the elements that the last
// DrawOrbit left; fields as named in SimState under satellite.
void SatControl(Simulation& sim);

void tmrSat_Timer(Simulation& sim);
void btnPlay_Click(Simulation& sim);
void btnPause_Click(Simulation& sim);

} // namespace selvane
