// The projection and the dots of the main picture against plain rotation matrices.

#include "app/number_text.h"
#include "app/tolerance.h"
#include "replay/stage.h"
#include "scene/projection.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numbers>

namespace selvane {
namespace {

using raster::Stroke, raster::StrokeKind, replay::Of, replay::Stage;

constexpr double kPi = std::numbers::pi;

double Radian(double degrees)
{
    return degrees * kPi / 180;
}

struct Vector
{
    double x, y, z;
};

Vector AboutY(Vector v, double angle)
{
    return {v.x * std::cos(angle) - v.z * std::sin(angle), v.y,
            v.x * std::sin(angle) + v.z * std::cos(angle)};
}

Vector AboutZ(Vector v, double angle)
{
    return {v.x * std::cos(angle) - v.y * std::sin(angle),
            v.x * std::sin(angle) + v.y * std::cos(angle), v.z};
}

Vector AboutX(Vector v, double angle)
{
    return {v.x, v.y * std::cos(angle) - v.z * std::sin(angle),
            v.y * std::sin(angle) + v.z * std::cos(angle)};
}

Vector TruePlace(double radius, double inPlane, Turn turn)
{
    const Vector start{radius * std::cos(inPlane), radius * std::sin(inPlane), 0};
    return AboutX(AboutZ(AboutY(start, turn.aboutY), turn.aboutZ), turn.aboutX);
}

// The letters of the pole markers, with '|' where the disc is painted.
std::string MarkersRoundTheDisc(const raster::Drawing& drawing)
{
    std::string order;
    for (const Stroke& stroke : drawing.Strokes()) {
        order += drawing.TextOf(stroke);
        if (stroke.kind == StrokeKind::Sector && order.find('|') == std::string::npos) order += '|';
    }
    return order;
}

} // namespace

TEST(Projection, AgreesWithRotationMatrices)
{
    for (double inPlane = 3; inPlane < 360; inPlane += 11)
        for (double aboutY = -175; aboutY < 360; aboutY += 41)
            for (double aboutZ = -350; aboutZ < 360; aboutZ += 53)
                for (double aboutX = -80; aboutX < 200; aboutX += 37) {
                    const Turn turn{Radian(aboutY), Radian(aboutZ), Radian(aboutX)};
                    const Projected point = Project(10, Radian(inPlane), turn);
                    const Vector truth = TruePlace(10, Radian(inPlane), turn);
                    ASSERT_NEAR(point.x, truth.x, 1e-9);
                    ASSERT_NEAR(point.y, truth.y, 1e-9);
                    ASSERT_NEAR(point.z, truth.z, 1e-9);
                    ASSERT_NEAR(point.Dist(), std::hypot(truth.x, truth.y), 1e-9);
                    const double height = 10 * std::cos(Radian(inPlane)) * std::sin(turn.aboutY);
                    ASSERT_NEAR(point.planeZ, height, 1e-9);
                    ASSERT_NEAR(std::hypot(point.PlaneDist(), point.planeZ), 10, 1e-9);
                }
}

TEST(Projection, TheTwoBranchRuleTurnsTheNegativeYSideUp)
{
    const Projected nothing = Project(0, 1, {2, 3, 4});
    EXPECT_EQ(nothing.Dist(), 0);
    EXPECT_EQ(nothing.PlaneDist(), 0);
    EXPECT_NEAR(Project(10, Radian(200), {}).x, 10 * std::cos(Radian(200)), 1e-12);
    EXPECT_NEAR(Project(10, Radian(200), {}).y, 10 * std::sin(Radian(200)), 1e-12);
    // Exactly on the x axis with z2 below 0: the angle is Pi / 2, so the point comes out mirrored.
    const Projected mirrored = Project(50, 0, {Radian(-23.45), 0, Radian(-60)});
    EXPECT_NEAR(mirrored.x, 45.87, 0.005);
    EXPECT_NEAR(mirrored.y, 17.23, 0.005);
    EXPECT_GT(mirrored.z, 0);
}

// On a turn by whole quarters, what is 0 in exact arithmetic is neither in front nor behind, and a
// point on the limb or on the shadow's surface is hidden and lit, whatever the last bits say.
TEST(Projection, WhatIsNextToAMarkCountsAsTheMark)
{
    int onTheScreen = 0;
    for (int inPlane = 0; inPlane <= 360; inPlane += 30)
        for (int aboutZ = -360; aboutZ <= 360; aboutZ += 30)
            for (int quarters = -4; quarters <= 4; ++quarters) {
                const Turn turn{0, Radian(aboutZ), Radian(quarters * 90)};
                const Projected point = Project(50, Radian(inPlane), turn);
                const int angle = (inPlane + aboutZ + 720) % 360;
                const bool flat = quarters % 2 == 0 || angle % 180 == 0;
                EXPECT_EQ(point.z == 0, flat) << inPlane << ' ' << aboutZ << ' ' << quarters;
                EXPECT_EQ(point.x == 0, angle % 180 == 90) << inPlane << ' ' << aboutZ;
                EXPECT_EQ(point.x > 0, angle < 90 || angle > 270) << inPlane << ' ' << aboutZ;
                EXPECT_EQ(IsInSight(point, 50), point.z > 0);
                onTheScreen += flat;
            }
    EXPECT_GT(onTheScreen, 1000);

    const Projected onTheLimb{30, 40, 0, 30, 40, 0, 0, 0};
    const double nearly = 50 * 1e-10, clearly = 50 * 1e-8;
    EXPECT_FALSE(IsInSight(onTheLimb, 50 - nearly));
    EXPECT_TRUE(IsInSight(onTheLimb, 50 - clearly));
    const Projected onTheShadow{1, 30, -40, 1, 30, -40, 0, 0};
    EXPECT_FALSE(IsInShadow(onTheShadow, 50 + nearly));
    EXPECT_TRUE(IsInShadow(onTheShadow, 50 + clearly));
}

TEST(Tolerance, WholeNumbersAndTiesAreMetFromBothSides)
{
    for (const double whole : {-3.0, 0.0, 1.0, 599.0, 35786.0, 1e6}) {
        for (const double rounding : {-1e-10, 0.0, 1e-10}) {
            EXPECT_EQ(SettledFloor(whole + rounding), whole) << rounding;
            EXPECT_EQ(RoundHalfEven(2 * whole + 0.5 + rounding), 2 * whole) << rounding;
        }
        EXPECT_EQ(SettledFloor(whole - 1e-6), whole - 1);
        EXPECT_EQ(RoundHalfEven(2 * whole + 0.5 + 1e-6), 2 * whole + 1);
    }
}

// The rings' dots come first, equator and dark meridian in one grey, then the orbit's.
TEST(MainPicture, DefaultFrameDotByDot)
{
    Stage stage;
    Tick(stage.sim, tmrSat);
    const SimState& state = stage.sim.state;
    const std::vector<Stroke> dots = Of(stage.sim.picSelvane.drawing, StrokeKind::Dot);
    std::size_t at = 0;
    int strays = 0; // dots on the rim, where rounding decides
    const auto expectNext = [&](const Vector& place, Colour colour) {
        const auto here = [&] {
            return std::hypot(dots[at].at[0] - place.x, dots[at].at[1] - place.y) < 0.01;
        };
        while (at < dots.size() && !here() && strays < 4) ++at, ++strays;
        ASSERT_LT(at, dots.size());
        ASSERT_TRUE(here()) << "dot " << at;
        EXPECT_EQ(dots[at++].colour, colour);
    };
    const auto expectRing = [&](Colour colour, double incl, double rollDeg) {
        strays = 0;
        for (int degree = 0; degree <= 360; ++degree) {
            const Vector place =
                TruePlace(50, Radian(degree), {Radian(incl), Radian(rollDeg), Radian(-60)});
            if (place.z >= 1e-6) expectNext(place, colour);
        }
    };
    const double turned = state.PlanetRotDeg, tilt = state.PlanetTilt;
    expectRing({127, 127, 127}, -tilt, 0);
    expectRing({127, 127, 127}, 90 - tilt * std::cos(Radian(turned)), turned);
    expectRing({191, 191, 191}, 90 - tilt * std::cos(Radian(turned + 90)), turned + 90);

    strays = 0;
    for (int degree = 0; degree <= 360; ++degree) {
        const double radius =
            64.9113169 * (1 - state.Ecc * state.Ecc) / (1 - state.Ecc * std::cos(Radian(degree)));
        const Vector place = TruePlace(radius, Radian(degree), {Radian(60 - tilt), 0, Radian(-60)});
        const bool shadow = place.x > 0 && std::hypot(place.y, place.z) < 50;
        if (place.z < 0 && std::hypot(place.x, place.y) < 50) continue;
        expectNext(place, shadow ? RGB(127, 127, 127) : kWhite);
    }
    EXPECT_EQ(at, dots.size());
}

TEST(MainPicture, TheViewDecidesWhichPoleStandsBehindTheDisc)
{
    const std::map<std::string, std::vector<const char*>> views = {
        {"S|N", {"0", "60", "89.5", "300", "-60", "-300"}},
        {"N|S", {"120", "180", "-200"}},
        {"NS|NS", {"90", "270", "-90"}},
        {"|", {"361", "-361"}}};
    for (const auto& [order, texts] : views)
        for (const char* view : texts) {
            Stage stage;
            Type(stage.sim, txtView, view);
            Tick(stage.sim, tmrSat);
            EXPECT_EQ(MarkersRoundTheDisc(stage.sim.picSelvane.drawing), order) << view;
            Choose(stage.sim, mnES2);
            Type(stage.sim, txtView, view);
            Tick(stage.sim, tmrES2);
            EXPECT_EQ(MarkersRoundTheDisc(stage.sim.picSelvane.drawing), order)
                << view << ", Earth-Sun";
        }
}

} // namespace selvane
