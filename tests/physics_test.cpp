// The read-outs against a two-body computation of the test's own, in extended precision from
// positions and velocities. How far the simplified ones miss is the documents' matter.

#include "app/number_text.h"
#include "app/planets.h"
#include "replay/stage.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

namespace selvane {
namespace {

using replay::Stage;

constexpr long double kPi = std::numbers::pi_v<long double>;
constexpr int kOrbitsPerPlanet = 500;

long double Radian(long double degrees)
{
    return degrees * kPi / 180;
}

std::string Printed(long double value, int decimals)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*Lf", decimals, value);
    return text;
}

// An orbit from what is conserved along it: the velocity at the periapsis follows from equal
// energy and equal angular momentum at both apsides.
struct TwoBody
{
    long double mu, periapsis, apoapsis; // radii, km
    long double energy, momentum, parameter, eccentricity, semiMajor, semiMinor, period;

    TwoBody(long double gravity, long double near, long double far)
        : mu(gravity), periapsis(near), apoapsis(far)
    {
        const long double speed = std::sqrt(2 * mu * far / (near * (near + far)));
        energy = speed * speed / 2 - mu / near;
        momentum = near * speed;
        parameter = momentum * momentum / mu;
        eccentricity = parameter / near - 1;
        semiMajor = -mu / (2 * energy);
        semiMinor = std::sqrt(semiMajor * parameter);
        period = 2 * kPi * semiMajor * semiMinor / momentum; // equal areas in equal times
    }

    long double Radius(long double anomaly) const
    {
        return parameter / (1 + eccentricity * std::cos(Radian(anomaly)));
    }
    long double Speed(long double anomaly) const
    {
        return std::sqrt(2 * (energy + mu / Radius(anomaly)));
    }
};

// Seeded inputs with an odd last decimal: two for the near end of an orbit and three for the far
// one, so that neither they nor their mean lie on the edge of a printed digit.
class Draw
{
public:
    explicit Draw(unsigned seed) : numbers_(seed) {}
    int Whole(int low, int high)
    {
        return low + static_cast<int>(numbers_() % static_cast<unsigned>(high - low + 1));
    }
    std::string Near(int low, int high) { return Km(low, high, 2 * Whole(5, 49) + 1); }
    std::string Far(int low, int high) { return Km(low, high, 2 * Whole(50, 499) + 1); }

private:
    std::string Km(int low, int high, int decimals)
    {
        return std::to_string(Whole(low, high)) + "." + std::to_string(decimals);
    }

    std::mt19937 numbers_;
};

struct SweptOrbit
{
    TwoBody truth;
    int anomaly;
};

// Puts one orbit into the program through the pair whose turn it is, and the satellite into it.
SweptOrbit Enter(Stage& stage, Draw& draw, int turn)
{
    Simulation& sim = stage.sim;
    const long double radius = sim.state.PlanetRadius;
    const std::string near = draw.Near(150, 20000);
    const std::string far = draw.Far(20001, 90000);
    long double periapsis = std::stold(near) + radius;
    long double apoapsis = std::stold(far) + radius;
    if (turn % 3 == 0) {
        Type(sim, txtPeri, near);
        Type(sim, txtApo, far);
        Click(sim, btnApsisCalculate);
    } else if (turn % 3 == 1) {
        const std::string shape = "0." + std::to_string(draw.Whole(10001, 94999)) + "7";
        Type(sim, txtPeriE, near);
        Type(sim, txtE, shape);
        Click(sim, btnECalculate);
        apoapsis = periapsis * (1 + std::stold(shape)) / (1 - std::stold(shape));
    } else {
        const int major = draw.Whole(20000, 90000);
        const int minor = draw.Whole(major / 2, major - 1);
        Type(sim, txtSMajAxis, std::to_string(major));
        Type(sim, txtSMinAxis, std::to_string(minor));
        Click(sim, btnAxisCalculate);
        const long double focus = std::sqrt((static_cast<long double>(major) - minor) *
                                            (static_cast<long double>(major) + minor));
        periapsis = major - focus;
        apoapsis = major + focus;
    }
    const int argument = draw.Whole(0, 360);
    Type(sim, txtARGP, std::to_string(argument));
    const int degree = draw.Whole(1, 358);
    sim.state.SatDeg = degree - 1;
    Tick(sim, tmrSat);
    return {TwoBody(sim.state.PlanetMu, periapsis, apoapsis), (degree - argument + 90 + 720) % 360};
}

void ExpectExactReadOuts(const Stage& stage, const SweptOrbit& orbit)
{
    const TwoBody& truth = orbit.truth;
    const long double planet = stage.sim.state.PlanetRadius;
    const long double distance = truth.Radius(orbit.anomaly);
    const long double speed = truth.Speed(orbit.anomaly);
    const std::pair<LabelId, std::string> rows[] = {
        {lblOutput(0), "Period =  " + Printed(truth.period / 60, 0) + " Min  (" +
                           Printed(truth.period / 3600, 2) + " Hr)"},
        {lblOutput(2), "Semi-Minor Axis = " + Printed(truth.semiMinor, 0) + " Km"},
        {lblOutput(3), "Semi-Major Axis = " + Printed(truth.semiMajor, 0) + " Km"},
        {lblOutput(4), "Eccentricity = " + Printed(truth.eccentricity, 3)},
        {lblOutput(5), "Periapsis = " + Printed(truth.periapsis - planet, 0) + " Km"},
        {lblOutput(6), "Apoapsis = " + Printed(truth.apoapsis - planet, 0) + " Km"},
        {lblOutput(9), "Velocity = " + Printed(speed, 1) + " km/sec"},
        {lblOutput(10), "True Anomaly = " + std::to_string(orbit.anomaly) + " Degrees"},
        {lblOutput(11), "Altitude = " + Printed(std::floor(distance - planet), 0) + " km"},
        {lblPE, "Potential = " + Printed(-truth.mu / distance, 1)},
        {lblKE, "Kinetic = " + Printed(speed * speed / 2, 1)},
        {lblTE, "Total = " + Printed(truth.energy, 1)},
    };
    for (const auto& [label, caption] : rows)
        EXPECT_EQ(stage.sim.controls.labels[Index(label)].caption, caption);
}

} // namespace

TEST(Physics, ExactReadOutsAgreeWithATwoBodyComputationToTheLastDigit)
{
    Stage stage;
    Draw draw(20121);
    for (const PlanetRow& planet : PlanetTable()) {
        if (planet.item != mnEarth) Choose(stage.sim, planet.item);
        for (int turn = 0; turn < kOrbitsPerPlanet && !HasFailure(); ++turn) {
            const SweptOrbit orbit = Enter(stage, draw, turn);
            SCOPED_TRACE(stage.sim.state.PlanetName + ", orbit " + std::to_string(turn));
            ExpectExactReadOuts(stage, orbit);
        }
    }
}

// A circle whose plane holds the line to the Sun spends 2 asin(R / r) of its turn in the shadow.
TEST(Physics, EclipseOfACircleAgreesWithTheCylinderToOneSample)
{
    Stage stage;
    Draw draw(7);
    for (int turn = 0; turn < 500; ++turn) {
        const std::string altitude = draw.Near(10, 60000);
        const int node = draw.Whole(100, 260); // the sample that counts twice stays in the light
        const double tilt = stage.sim.state.PlanetTilt;
        const double inPlane = tilt * std::cos(node * std::numbers::pi / 180);
        Type(stage.sim, txtIncl, PlainNumber(inPlane));
        Type(stage.sim, txtRot, std::to_string(node));
        Type(stage.sim, txtPeriE, altitude);
        Click(stage.sim, btnECalculate);
        const long double planet = stage.sim.state.PlanetRadius;
        const TwoBody truth(stage.sim.state.PlanetMu, planet + std::stold(altitude),
                            planet + std::stold(altitude));
        const long double shadow = truth.period * std::asin(planet / truth.periapsis) / kPi;
        EXPECT_NEAR(stage.sim.state.EclipseSec, static_cast<double>(shadow),
                    static_cast<double>(truth.period / 360) * 1.0001)
            << altitude << " km, node " << node;
    }
}

} // namespace selvane
