#include "scene/planet_disc.h"

#include "app/number_text.h"
#include "app/simulation.h"
#include "app/tolerance.h"

#include <cmath>

namespace selvane {

namespace {

// A sector's angles stay within a full turn in size, so the half that crosses the +x axis takes two
// calls. An angle of 0 is not negative and draws no radius, so three quarters of a turn takes a
// closed half besides.
void DayHalf(const SimState& state, Picture& picture)
{
    const double pi = state.Pi;
    const double helio = Snapped(Snapped(state.HelioRad, 0.5 * pi, pi), 1.5 * pi, pi);
    const auto sector = [&](double start, double end) {
        picture.Circle(state.PlanetX, state.PlanetY, state.PlanetPx, state.PlanetLight, start, end);
    };
    if (!IsSunCentred(state.OrbitMode)) {
        sector(-0.5 * pi, -1.5 * pi);
    } else if (helio <= 0.5 * pi) {
        sector(-0.5 * pi - helio, -1.5 * pi - helio);
    } else if (helio < 1.5 * pi) {
        sector(-helio - 0.5 * pi, -2 * pi);
        sector(-2 * pi, -helio + 0.5 * pi);
    } else {
        sector(-helio + 1.5 * pi, -helio + 0.5 * pi);
        if (helio == 1.5 * pi) sector(-2 * pi, -pi);
    }
}

// Light falls on the lower part of the disc, from y = 15 downward, and grows towards the rim.
Colour RowColour(double y, double radius)
{
    const double shine = std::pow(std::sin(std::fabs(15 - y) / radius), 0.75);
    const int grey = static_cast<int>(RoundHalfEven(191 * shine));
    return RGB(grey, grey, static_cast<int>(RoundHalfEven(128 * shine + 127)));
}

} // namespace

void BarePlanet(Simulation& sim)
{
    SimState& state = sim.state;
    state.CurPic =
        state.OrbitMode == Scenario::Tutorial ? PictureId::picDemo : PictureId::picSelvane;
    Picture& picture = CurrentPicture(sim);

    picture.ForeColor = picture.FillColor = state.PlanetDark;
    picture.Circle(state.PlanetX, state.PlanetY, state.PlanetPx, state.PlanetDark);
    picture.ForeColor = picture.FillColor = state.PlanetLight;
    DayHalf(state, picture);
    picture.ForeColor = RGB(191, 191, 191);
}

void BarePlanetD(Simulation& sim)
{
    Picture& picture = CurrentPicture(sim);
    const double radius = sim.state.PlanetPx;
    const Colour night = RGB(0, 0, 127);
    for (double ring = radius; ring >= 1; --ring) {
        picture.ForeColor = picture.FillColor = night;
        picture.Circle(0, 0, ring, night);
    }
    for (double y = 15; y >= -radius; --y) {
        const double halfWidth = std::sqrt(radius * radius - y * y);
        picture.Line(-halfWidth, y, halfWidth, y, RowColour(y, radius));
    }
}

} // namespace selvane
