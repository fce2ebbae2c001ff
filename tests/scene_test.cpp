// The main picture, stroke by stroke, and the projection against plain rotation matrices.

#include "bench.h"
#include "scene/projection.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace selvane {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr Colour kYellow{255, 255, 127}, kGrey{95, 95, 95};

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

std::vector<Stroke> WithoutDots(const Recorder& picture)
{
    std::vector<Stroke> strokes;
    for (const Stroke& stroke : picture.strokes)
        if (stroke.kind != StrokeKind::Point) strokes.push_back(stroke);
    return strokes;
}

// The letters of the pole markers, with '|' where the disc is painted.
std::string MarkersRoundTheDisc(const Recorder& picture)
{
    std::string order;
    for (const Stroke& stroke : picture.strokes) {
        if (stroke.kind == StrokeKind::Text) order += stroke.text;
        if (stroke.kind == StrokeKind::Sector && order.find('|') == std::string::npos) order += '|';
    }
    return order;
}

std::vector<Stroke> DotsOf(const Recorder& picture, Colour colour)
{
    std::vector<Stroke> dots;
    for (const Stroke& dot : picture.Of(StrokeKind::Point))
        if (dot.colour == colour) dots.push_back(dot);
    return dots;
}

void ExpectStroke(const Stroke& actual, const Stroke& expected)
{
    EXPECT_EQ(actual.kind, expected.kind);
    EXPECT_EQ(actual.colour, expected.colour);
    EXPECT_EQ(actual.fill, expected.fill);
    EXPECT_EQ(actual.text, expected.text);
    EXPECT_NEAR(actual.x1, expected.x1, 0.01);
    EXPECT_NEAR(actual.y1, expected.y1, 0.01);
    EXPECT_NEAR(actual.x2, expected.x2, 0.01);
    EXPECT_NEAR(actual.y2, expected.y2, 0.01);
    EXPECT_NEAR(actual.start, expected.start, 1e-9);
    EXPECT_NEAR(actual.end, expected.end, 1e-9);
}

Stroke Line(float x1, float y1, float x2, float y2, Colour colour)
{
    return {StrokeKind::Line, x1, y1, x2, y2, colour, {}, {}, 0, 0};
}

Stroke Disc(float x, float y, float radius, Colour outline, Colour fill)
{
    return {StrokeKind::Circle, x, y, radius, 0, outline, {}, fill, 0, 0};
}

Stroke DayHalf(float x, float y, Colour colour, double start, double end)
{
    return {StrokeKind::Sector, x, y, 50, 0, colour, {}, colour, start, end};
}

Stroke Letter(float x, float y, Colour colour, const char* text)
{
    return {StrokeKind::Text, x, y, 0, 0, colour, text, {}, 0, 0};
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
                    ASSERT_NEAR(point.dist, std::hypot(truth.x, truth.y), 1e-9);
                    const double height = 10 * std::cos(Radian(inPlane)) * std::sin(turn.aboutY);
                    ASSERT_NEAR(point.planeZ, height, 1e-9);
                    ASSERT_NEAR(std::hypot(point.planeDist, point.planeZ), 10, 1e-9);
                }
}

TEST(Projection, TheTwoBranchRuleTurnsTheNegativeYSideUp)
{
    const Projected nothing = Project(0, 1, {2, 3, 4});
    EXPECT_EQ(nothing.dist, 0);
    EXPECT_EQ(nothing.planeDist, 0);
    EXPECT_NEAR(Project(10, Radian(200), {}).x, 10 * std::cos(Radian(200)), 1e-12);
    EXPECT_NEAR(Project(10, Radian(200), {}).y, 10 * std::sin(Radian(200)), 1e-12);
    // Exactly on the x axis with z2 below 0: the angle is Pi / 2, so the point comes out mirrored.
    const Projected mirrored = Project(50, 0, {Radian(-23.45), 0, Radian(-60)});
    EXPECT_NEAR(mirrored.x, 45.87, 0.005);
    EXPECT_NEAR(mirrored.y, 17.23, 0.005);
    EXPECT_GT(mirrored.z, 0);
}

TEST(MainPicture, DefaultFrameStrokeByStroke)
{
    Bench bench;
    Tick(bench.sim, tmrSat);
    const std::vector<Stroke> strokes = WithoutDots(bench.picSelvane);
    const Colour light = bench.sim.state.PlanetLight, dark = bench.sim.state.PlanetDark;
    const auto x = static_cast<float>(std::cos(Radian(66.55)));
    const auto y = static_cast<float>(std::sin(Radian(66.55)) * std::sin(Radian(60)));
    const float f = static_cast<float>(std::sin(Radian(60)));
    const Stroke expected[] = {
        Line(-266.667F, 0, 533.333F, 0, kGrey),
        Line(-266.667F, 200, -266.667F, -400, kGrey),
        Line(0, 200, 0, -400, kGrey),
        Line(-266.667F, 0, 533.333F, 0, kGrey),
        Disc(-266.667F, 0, 50, {127, 127, 0}, kYellow),
        Line(-266.667F, 0, 0, 0, kYellow),
        Line(-50 * x, -50 * y, -70 * x, -70 * y, kWhite),
        Letter(-70 * x - 8, -70 * y + 6 - 8 * f, kWhite, "S"),
        Disc(0, 0, 50, dark, dark),
        DayHalf(0, 0, light, -kPi / 2, -1.5 * kPi),
        Line(50 * x, 50 * y, 70 * x, 70 * y, kWhite),
        Letter(70 * x, 70 * y + 6 + 6 * f, kWhite, "N"),
    };
    ASSERT_EQ(strokes.size(), std::size(expected));
    for (std::size_t at = 0; at < strokes.size(); ++at) {
        SCOPED_TRACE(at);
        ExpectStroke(strokes[at], expected[at]);
    }
}

// The rings' dots come first, equator and dark meridian in one grey, then the orbit's.
TEST(MainPicture, DefaultFrameDotByDot)
{
    Bench bench;
    Tick(bench.sim, tmrSat);
    const SimState& state = bench.sim.state;
    const std::vector<Stroke> dots = bench.picSelvane.Of(StrokeKind::Point);
    std::size_t at = 0;
    const auto expectRing = [&](Colour colour, double incl, double rollDeg) {
        int missed = 0;
        for (int degree = 0; degree <= 360; ++degree) {
            const Vector place =
                TruePlace(50, Radian(degree), {Radian(incl), Radian(rollDeg), Radian(-60)});
            if (place.z < 1e-6) continue; // behind, or on the rim where rounding decides
            while (at < dots.size() &&
                   std::hypot(dots[at].x1 - place.x, dots[at].y1 - place.y) > 0.01 && missed < 4)
                ++at, ++missed;
            ASSERT_LT(at, dots.size());
            EXPECT_EQ(dots[at].colour, colour);
            EXPECT_NEAR(dots[at].x1, place.x, 0.01) << degree;
            EXPECT_NEAR(dots[at].y1, place.y, 0.01) << degree;
            ++at;
        }
    };
    const double turned = state.PlanetRotDeg;
    const double tilt = state.PlanetTilt;
    expectRing({127, 127, 127}, -tilt, 0);
    expectRing({127, 127, 127}, 90 - tilt * std::cos(Radian(turned)), turned);
    expectRing({191, 191, 191}, 90 - tilt * std::cos(Radian(turned + 90)), turned + 90);

    int strays = 0;
    for (int degree = 0; degree <= 360; ++degree) {
        const double radius =
            64.9113169 * (1 - state.Ecc * state.Ecc) / (1 - state.Ecc * std::cos(Radian(degree)));
        const Vector place = TruePlace(radius, Radian(degree), {Radian(60 - tilt), 0, Radian(-60)});
        const bool shadow = place.x > 0 && std::hypot(place.y, place.z) < 50;
        if (place.z < 0 && std::hypot(place.x, place.y) < 50) continue;
        while (at < dots.size() &&
               std::hypot(dots[at].x1 - place.x, dots[at].y1 - place.y) > 0.01 && strays < 4)
            ++at, ++strays;
        ASSERT_LT(at, dots.size()) << degree;
        EXPECT_EQ(dots[at].colour, shadow ? RGB(127, 127, 127) : kWhite) << degree;
        EXPECT_NEAR(dots[at].x1, place.x, 0.01) << degree;
        EXPECT_NEAR(dots[at].y1, place.y, 0.01) << degree;
        ++at;
    }
    EXPECT_EQ(at, dots.size());
}

TEST(MainPicture, TheViewDecidesWhichPoleStandsBehindTheDisc)
{
    struct Case
    {
        const char* view;
        const char* order;
    };
    for (const auto& [view, order] : {Case{"0", "S|N"},
                                      {"60", "S|N"},
                                      {"89.5", "S|N"},
                                      {"90", "NS|NS"},
                                      {"120", "N|S"},
                                      {"180", "N|S"},
                                      {"270", "NS|NS"},
                                      {"300", "S|N"},
                                      {"-60", "S|N"},
                                      {"-90", "NS|NS"},
                                      {"-200", "N|S"},
                                      {"-300", "S|N"},
                                      {"361", "|"},
                                      {"-361", "|"}}) {
        Bench bench;
        Type(bench.sim, txtView, view);
        Tick(bench.sim, tmrSat);
        EXPECT_EQ(MarkersRoundTheDisc(bench.picSelvane), order) << view;
        Choose(bench.sim, mnES2);
        Type(bench.sim, txtView, view);
        Tick(bench.sim, tmrES2);
        EXPECT_EQ(MarkersRoundTheDisc(bench.picSelvane), order) << view << ", Earth-Sun";
    }
}

// The day half looks at the Sun from every place of the year, in one sector, two, or one and the
// half that closes it.
TEST(MainPicture, TheDayHalfThroughTheYear)
{
    struct Case
    {
        double helio;
        std::vector<std::pair<double, double>> sectors;
    };
    const Case cases[] = {
        {0.5, {{-90.5, -270.5}}},
        {90, {{-180, -360}}},
        {90.5, {{-180.5, -360}, {-360, -0.5}}},
        {180, {{-270, -360}, {-360, -90}}},
        {269.5, {{-359.5, -360}, {-360, -179.5}}},
        {270, {{-360, -180}}},
        {270.5, {{-0.5, -180.5}}},
        {359.5, {{-89.5, -269.5}}},
    };
    Bench bench;
    Choose(bench.sim, mnES2);
    const Colour light = bench.sim.state.PlanetLight;
    for (const auto& [helio, sectors] : cases) {
        SCOPED_TRACE(helio);
        bench.sim.state.HelioDeg = helio - 0.5;
        Tick(bench.sim, tmrES2);
        const float x = static_cast<float>(240 * std::cos(Radian(helio)));
        const float y = static_cast<float>(240 * std::sin(Radian(helio)));
        const std::vector<Stroke> drawn = bench.picSelvane.Of(StrokeKind::Sector);
        ASSERT_EQ(drawn.size(), sectors.size());
        for (std::size_t at = 0; at < drawn.size(); ++at)
            ExpectStroke(drawn[at], DayHalf(x, y, light, Radian(sectors[at].first),
                                            Radian(sectors[at].second)));
        EXPECT_EQ(bench.picSelvane.Of(StrokeKind::Arc).size(), helio == 270 ? 1U : 0U);
    }
}

TEST(MainPicture, TheSunInTheMiddleAndTheGraticuleRoundThePlanet)
{
    Bench bench;
    Choose(bench.sim, mnES2);
    bench.sim.state.HelioDeg = 29.5;
    Tick(bench.sim, tmrES2);
    const auto x = static_cast<float>(240 * std::cos(Radian(30))), y = 120.0F;
    const std::vector<Stroke> strokes = WithoutDots(bench.picSelvane);
    const Stroke expected[] = {
        Line(-400, 0, 800, 0, kGrey),           Line(0, 300, 0, -600, kGrey),
        Line(x, 300, x, -600, kGrey),           Line(-400, y, 800, y, kGrey),
        Disc(0, 0, 50, {127, 127, 0}, kYellow), Line(0, 0, x, y, kYellow),
    };
    for (std::size_t at = 0; at < std::size(expected); ++at)
        ExpectStroke(strokes[at], expected[at]);

    const std::vector<Stroke> graticule = DotsOf(bench.picSelvane, {159, 159, 159});
    EXPECT_GT(graticule.size(), 500U);
    for (const Stroke& dot : graticule) EXPECT_LE(std::hypot(dot.x1 - x, dot.y1 - y), 50.001);
    std::vector<Stroke> orbit = DotsOf(bench.picSelvane, kWhite);
    const std::vector<Stroke> grey = DotsOf(bench.picSelvane, {127, 127, 127});
    orbit.insert(orbit.end(), grey.begin(), grey.end());
    for (const Stroke& dot : orbit) EXPECT_LE(std::hypot(dot.x1 - x, dot.y1 - y), 75.2);
}

} // namespace selvane
