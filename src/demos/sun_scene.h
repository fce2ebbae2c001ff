// The Sun-centred scene of two demonstrations: the Sun in the middle of the picture, the planet
// with its satellite's orbit travelling round it while a day counter runs. The satellite itself is
// not shown. The clock of the scene is one angle, HelioDeg.
#pragma once

namespace selvane {

struct Simulation;

// The Earth-Sun orbit: the satellite's orbit keeps its direction in space while that of the Sun
// turns, so the time in the shadow changes through the year. A click on the checked item goes back
// to the default orbit.
void mnES2_Click(Simulation& sim);

// The sun-synchronous orbit: its plane turns with the line to the Sun and keeps its angle to it all
// year. A click on the checked item goes back to the default orbit; both ways end in play.
void mnSunSynch_Click(Simulation& sim);

// Ticks of either: half a degree round the Sun, with the day counter; at 360 it starts again from
// 0.
void tmrES2_Timer(Simulation& sim);
void tmrSunSynch_Timer(Simulation& sim);

// Places planet and Sun by HelioDeg and paints the whole picture. The path keeps its size on the
// screen at every zoom. Writes HelioRad, PlanetX, PlanetY, SunX, SunY.
void PlanetPosition(Simulation& sim);

} // namespace selvane
