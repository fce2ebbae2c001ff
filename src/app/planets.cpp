#include "app/planets.h"

#include "app/number_text.h"
#include "app/simulation.h"

namespace selvane {

namespace {

// clang-format off
constexpr PlanetRow kPlanets[] = {
  //                      radius  mu          tilt   day       light             dark
  {mnMercury, "Mercury",   2440,     22032,  0,    1412.047, {223, 127, 127}, {127,  63,   0}},
  {mnVenus,   "Venus",     6051,    324859,  2.6,  5815.719, {191, 255, 127}, { 63,  79,   0}},
  {mnEarth,   "Earth",     6371,    398600, 23.45,   23.933, {127, 127, 255}, { 31,  31, 159}},
  {mnMars,    "Mars",      3391,     42828, 25.19, 24.65099, {255, 127, 127}, {127,   0,   0}},
  {mnJupiter, "Jupiter",  69911, 126686534,  3.12,     9.92, {255, 191, 127}, {159,  95,  31}},
};
// clang-format on

const PlanetRow& RowOf(MenuId item)
{
    for (const PlanetRow& row : kPlanets)
        if (row.item == item) return row;
    AssertionFailed("a planet's menu item", __FILE__, __LINE__);
}

std::string PlanetCaption(const PlanetRow& row)
{
    return std::string(row.name) + ":  Radius = " + PlainNumber(row.radius) +
           " km, Tilt = " + PlainNumber(row.tilt) + " deg, Day = " + FixedNumber(row.day, 1) +
           " hours";
}

} // namespace

std::span<const PlanetRow> PlanetTable()
{
    return kPlanets;
}

void SelectPlanet(Simulation& sim, MenuId item)
{
    const PlanetRow& row = RowOf(item);
    SimState& state = sim.state;
    state.PlanetName = row.name;
    state.PlanetMu = row.mu;
    state.PlanetRadius = row.radius;
    state.PlanetTilt = row.tilt;
    state.PlanetDay = row.day;
    state.PlanetLight = row.light;
    state.PlanetDark = row.dark;
    SetCaption(sim, lblPlanet, PlanetCaption(row));
}

} // namespace selvane
