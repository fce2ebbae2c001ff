#include "tutorials/solar_days.h"

#include "app/number_text.h"
#include "app/simulation.h"
#include "scene/ring.h"
#include "tutorials/step_controls.h"
#include "tutorials/strokes.h"

#include <cmath>

namespace selvane {

namespace {

constexpr double kSolarDaysPerYear = 365.25;
constexpr double kSiderealDaysPerYear = 366.25;

// An Earth lit by the Sun, at that angle on its path. Its lines do not turn with the days.
void LitEarth(Simulation& sim, double x, double y, double angle)
{
    Picture& picture = sim.picDemo;
    picture.Line(0, 0, x, y, kSunYellow);
    picture.ForeColor = picture.FillColor = kEarthNight;
    picture.Circle(x, y, kEarthRadius, kEarthNight);
    picture.ForeColor = picture.FillColor = kEarthDay;
    EarthHalf(sim, x, y, kEarthDay, angle);
    picture.ForeColor = RGB(159, 159, 159);
    sim.state.PosRadius = kEarthRadius;
    EarthEquator(sim, x, y);
    EarthMeridian(sim, x, y, 0);
    EarthMeridian(sim, x, y, sim.state.Pi / 2);
}

// A bare number: the sign's place in front, a blank behind.
std::string Bare(double number)
{
    return (number < 0 ? "" : " ") + PlainNumber(number) + " ";
}

} // namespace

std::string DaysText(double solarDays)
{
    const double siderealDays = solarDays * kSiderealDaysPerYear / kSolarDaysPerYear;
    return "Solar Days = " + Bare(solarDays) + "    Sidereal Days = " +
           (std::isfinite(siderealDays) ? FixedNumber(siderealDays, 2) : "N/A");
}

void SunDisc(Picture& picture)
{
    picture.ForeColor = picture.FillColor = kSunYellow;
    picture.Circle(0, 0, kEarthRadius, RGB(127, 127, 0));
}

// A sector's angles stay within a full turn in size, so the half that crosses the +x axis takes two
// sectors that meet there.
void EarthHalf(Simulation& sim, double x, double y, Colour outline, double angle)
{
    const double pi = sim.state.Pi;
    const auto sector = [&](double start, double end) {
        sim.picDemo.Circle(x, y, kEarthRadius, outline, start, end);
    };
    if (angle <= pi / 2) {
        sector(-pi / 2 - angle, -3 * pi / 2 - angle);
    } else if (angle < 3 * pi / 2) {
        sector(-pi / 2 - angle, -2 * pi);
        sector(-2 * pi, pi / 2 - angle);
    } else {
        sector(3 * pi / 2 - angle, pi / 2 - angle);
    }
}

void EarthNearCircle(Simulation& sim, double x, double y)
{
    SimState& state = sim.state;
    const Turn turn{state.DemoPosLon, state.DemoPosRoll, state.DemoViewRad};
    const Projected last = PlotNearHalf(sim.picDemo, kRunningSum, {state.PosRadius, turn}, {x, y});
    state.DemoPosLat = kRunningSum.back().radians + state.Pi / 180; // one step past the end
    StoreProjected(state, last);
}

void EarthEquator(Simulation& sim, double x, double y)
{
    SimState& state = sim.state;
    state.DemoPosLon = Radians(state, state.PlanetTilt);
    state.DemoPosRoll = 0;
    state.DemoViewRad = 0;
    EarthNearCircle(sim, x, y);
}

void EarthMeridian(Simulation& sim, double x, double y, double roll)
{
    SimState& state = sim.state;
    state.DemoPosRoll = roll;
    state.DemoLonDeg = 90 + state.PlanetTilt * std::cos(roll);
    state.DemoPosLon = Radians(state, state.DemoLonDeg);
    state.DemoViewRad = 0;
    EarthNearCircle(sim, x, y);
}

void Demo31(Simulation& sim)
{
    const SimState& state = sim.state;
    Picture& picture = sim.picDemo;
    picture.Cls();
    ShowRangeControls(sim);
    NameRange(sim, "Solar Days", "The time between noon of one day and noon of the next day.");

    picture.FillStyle = Fill::Solid;
    SunDisc(picture);
    LitEarth(sim, kPathRadius, 0, 0);
    const double angle = 2 * state.Pi * state.SolarDays / kSolarDaysPerYear;
    LitEarth(sim, kPathRadius * std::cos(angle), kPathRadius * std::sin(angle), angle);
    picture.ForeColor = kLightGrey;
    TextAt(picture, picture.ScaleLeft + 2, picture.ScaleTop - 2, DaysText(Number(sim, txtRange)));
}

} // namespace selvane
