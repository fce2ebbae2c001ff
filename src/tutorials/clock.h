// The clock of the time standards: GMT and local time as text, and the year as a dial with the Sun
// in its middle. Local dates and times are what the system clock shows; no time zone is asked for.
#pragma once

#include "app/platform.h"

#include <optional>
#include <string>

namespace selvane {

struct Simulation;

// Step 32: empties picDemo, starts the clock and makes sclRange the control of the GMT offset. The
// picture comes with the clock's first tick.
void Demo32(Simulation& sim);

// Ticks of tmrTime: paints picDemo anew. Reads the clock, txtRange and PlanetTilt. Writes
// GmtOffset, leaves the scratch of the Demo projection and FillStyle solid.
void tmrTime_Timer(Simulation& sim);

// Whole days gone in the year: 0 on 1 January, 364 or 365 on 31 December.
int DaysGone(const LocalTime& time);

int SecondsSinceMidnight(const LocalTime& time);

// The time so many hours earlier, to the nearest second. Nothing where the year falls outside 1 to
// 9999, however large the offset.
std::optional<LocalTime> HoursEarlier(const LocalTime& time, double hours);

// "2012-Jul-28 14:48:46", the month in English; "N/A" for no time.
std::string ClockText(const std::optional<LocalTime>& time);

// The Earth on the dial, which runs counter-clockwise from the winter solstice on the left.
struct EarthOnDial
{
    double orbitDeg; // 9.83 on 1 January, over 360 in the last days of December
    double orbitRad; // also the direction from the Earth to the Sun
    double x, y;
    double spinDeg; // rotation at local time, whole degrees
    double spinRad; // rotation at GMT
};

// The offset in hours; one of more than a day, however large, turns the Earth like its part of a
// day.
EarthOnDial PlaceOnDial(int daysGone, int daySeconds, double gmtOffset);

} // namespace selvane
