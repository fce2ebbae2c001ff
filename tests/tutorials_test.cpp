// The two tutorials: what each scene draws, how the steps follow one another, and that the flight
// beside them never notices.
#include "bench.h"
#include "tutorials/clock.h"
#include "tutorials/solar_days.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

using namespace selvane;

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kTwoPlaces = 0.00501;
constexpr Colour kDark{63, 63, 63}, kLight{191, 191, 191}, kYellow{255, 255, 127};
constexpr Colour kBlue{127, 127, 255}, kFarBlue{63, 63, 191}, kGrey{159, 159, 159};
constexpr auto kLine = StrokeKind::Line, kRing = StrokeKind::Circle, kText = StrokeKind::Text,
               kDots = StrokeKind::Point;

// R and T choose Reference Frames and Time Standards, N and B press Next and Back, t ticks.
void Walk(Bench& bench, std::string_view actions)
{
    for (const char action : actions) {
        if (action == 'R') Choose(bench.sim, mnSatelliteTracking);
        if (action == 'T') Choose(bench.sim, mnTimeStandards);
        if (action == 'N') Click(bench.sim, btnNext2);
        if (action == 'B') Click(bench.sim, btnBack2);
        if (action == 't') Tick(bench.sim, tmrTime);
    }
}

// The picture in rows: dots of one colour that follow one another are one row, from the first to
// the last, with their number as text.
std::vector<Stroke> RowsOf(const Recorder& picture)
{
    std::vector<Stroke> rows;
    int dots = 0;
    for (const Stroke& stroke : picture.strokes) {
        const bool more = dots > 0 && stroke.kind == kDots && stroke.colour == rows.back().colour;
        if (!more) rows.push_back(stroke);
        dots = stroke.kind == kDots ? (more ? dots + 1 : 1) : 0;
        rows.back().x2 = stroke.x2;
        rows.back().y2 = stroke.y2;
        if (dots > 0) rows.back().text = std::to_string(dots);
    }
    return rows;
}

bool Near(float one, float other)
{
    return std::fabs(one - other) < kTwoPlaces;
}

void ExpectRows(const std::vector<Stroke>& rows, std::size_t first,
                const std::vector<Stroke>& expected)
{
    ASSERT_GE(rows.size(), first + expected.size());
    for (std::size_t at = 0; at < expected.size(); ++at) {
        const Stroke& row = rows[first + at];
        const Stroke& want = expected[at];
        EXPECT_TRUE(row.kind == want.kind && row.colour == want.colour && row.text == want.text &&
                    Near(row.x1, want.x1) && Near(row.y1, want.y1) && Near(row.x2, want.x2) &&
                    Near(row.y2, want.y2))
            << "row " << at << " is (" << row.x1 << ", " << row.y1 << ") (" << row.x2 << ", "
            << row.y2 << ") " << row.text;
    }
}

// The tables are read across.
// clang-format off

TEST(CelestialSphere, DrawsItsRowsOnEarthAndOnAPlanetWithoutTilt)
{
    Bench bench;
    const std::vector<Stroke> rows = RowsOf(bench.picDemo);
    EXPECT_EQ(rows[50].colour, RGB(8, 8, 20));
    EXPECT_EQ(rows[75].colour, RGB(23, 23, 58));
    EXPECT_EQ(rows[100].colour, RGB(31, 31, 79));
    ASSERT_EQ(rows.size(), 102u + 15);
    // The far half of the equator starts with a dot on the other side: the two-branch arctangent.
    ExpectRows(rows, 102, {
        {kLine, 0, -25.88f, 0, 25.88f, kDark}, {kLine, -91.74f, 38.44f, 91.74f, -38.44f, kDark},
        {kDots, 39.79f, 88.61f, 0, 96.59f, kDark, "722"},
        {kDots, -91.74f, 38.44f, 91.74f, -38.44f, kBlue, "361"},
        {kText, 91.74f, -30.44f, 0, 0, kBlue, " Celestial Equator"},
        {kDots, 91.74f, 38.44f, -91.74f, 38.44f, kFarBlue, "361"},
        {kDots, -100, 0, 100, 0, kYellow, "361"}, {kText, 100, 8, 0, 0, kYellow, " Ecliptic"},
        {kDots, 100, 0, -100, 0, RGB(159, 159, 0), "361"}, {kLine, 0, 0, 39.71f, 88.65f, kDark},
        {kLine, 39.71f, 88.65f, 47.66f, 106.38f, kLight},
        {kText, 2.66f, 118.17f, 0, 0, kLight, "North Celestial Pole"},
        {kLine, 0, 0, -39.71f, -88.65f, kDark},
        {kLine, -39.71f, -88.65f, -47.66f, -106.38f, kLight},
        {kText, -92.66f, -106.17f, 0, 0, kLight, "South Celestial Pole"}});
    Choose(bench.sim, mnMercury);
    Walk(bench, "RR");
    const std::vector<Stroke> untilted = RowsOf(bench.picDemo);
    ExpectRows(untilted, 106, {{kText, 100, 8, 0, 0, kBlue, " Celestial Equator"}});
    ExpectRows(untilted, 111, {rows.begin() + 111, rows.end()}); // the pole lines stay
}

TEST(PolarAxes, DrawsALitDiscWithAxesOnBorrowedFields)
{
    Bench bench;
    Walk(bench, "N");
    const std::vector<Stroke> rows = RowsOf(bench.picDemo);
    const Colour cross = RGB(95, 95, 95);
    const auto rim = static_cast<int>(std::lround(128 * std::pow(std::sin(75. / 60), 0.75) + 127));
    const auto grey = static_cast<int>(std::lround(191 * std::pow(std::sin(75. / 60), 0.75)));
    ASSERT_EQ(rows.size(), 148u);
    ExpectRows(rows, 0, {
        {kLine, -200, 0, 400, 0, cross}, {kLine, -200, 150, -200, -300, cross},
        {kLine, 0, 150, 0, -300, cross}, {kLine, -200, 0, 400, 0, cross},
        {kRing, 0, 0, 60, 0, RGB(0, 0, 127)}});
    ExpectRows(rows, 64, {{kLine, -58.09f, 15, 58.09f, 15, RGB(0, 0, 127)}});
    ExpectRows(rows, 139, {
        {kLine, 0, -60, 0, -60, RGB(grey, grey, rim)}, {kDots, 0, 0, 0, 0, kGrey, rows[140].text},
        {kLine, -60, 0, 60, 0, kGrey}, {kText, -6, -84, 0, 0, kWhite, "VE"},
        {kLine, 0, -60, 0, -70, kWhite}, {kText, -3, -72, 0, 0, kWhite, "X"},
        {kLine, 60, 0, 70, 0, kWhite}, {kText, 72, 6, 0, 0, kWhite, "Y"},
        {kText, -3, 6, 0, 0, kWhite, "Z (N)"}});
    EXPECT_NEAR(std::stoi(rows[140].text), 181, 1); // the near half
    EXPECT_EQ(bench.sim.state.PlanetPx, 60);
    EXPECT_EQ(bench.sim.state.SunX, -200);
    EXPECT_EQ(bench.sim.state.CurPic, &bench.picDemo);
    Walk(bench, "B");
    EXPECT_EQ(bench.sim.state.CurPic, &bench.picSelvane);
    Scroll(bench.sim, sclIncl, 61); // any draw of the main picture puts them right
    EXPECT_NEAR(bench.sim.state.PlanetPx, 50, 1e-12);
}

TEST(SphericalCoordinates, DrawsItsRows)
{
    Bench bench;
    Walk(bench, "NN");
    std::vector<Stroke> rows = RowsOf(bench.picDemo);
    ExpectRows(rows, 102, {
        {kLine, 0, -100, 0, 100, kDark}, {kLine, -100, 0, 100, 0, kDark},
        {kDots, 0, 96.59f, 0, 96.59f, kDark, "722"}, {kDots, -100, 0, 100, 0, kBlue, "361"},
        {kText, 100, 8, 0, 0, kBlue, " Celestial Equator"},
        {kDots, 100, 0, -100, 0, kFarBlue, "361"}, {kLine, 0, 0, 0, 96.59f, kDark},
        {kLine, 0, 96.59f, 0, 115.91f, kLight}, {kText, -4, 127.71f, 0, 0, kLight, "N"},
        {kLine, 0, 0, 0, -96.59f, kDark}, {kLine, 0, -96.59f, 0, -115.91f, kLight},
        {kText, -2, -115.71f, 0, 0, kLight, "S"}, {kLine, 0, -25.88f, 0, -31.06f, kLight},
        {kText, -6, -30.85f, 0, 0, kLight, "VE"}, {kRing, 43.30f, 77.18f, 2, 0, kWhite}});
    rows.erase(rows.begin(), rows.begin() + 117);
    const auto spokes = std::erase_if(rows, [](const Stroke& row) { return row.colour == kDark; });
    EXPECT_EQ(spokes, 1u + 13 + 13);
    ASSERT_EQ(rows.size(), 7u);
    ExpectRows(rows, 0, {
        {kDots, 86.60f, -12.94f, 43.30f, 77.18f, kWhite, "121"},
        {kLine, 0, 0, 43.30f, 77.18f, kLight}, {kText, 21.65f, 38.59f, 0, 0, kLight, "R"},
        {kText, 45.30f, 89.18f, 0, 0, kLight, "Dec"},
        {kDots, 0, -25.88f, 86.60f, -12.94f, kWhite, "121"},
        {kText, 88.60f, -10.94f, 0, 0, kLight, "RA"},
        {kLine, 0, 0, 86.60f, -12.94f, RGB(127, 127, 127)}});
}

TEST(SphericalCoordinates, TwoStepsDifferInThreeNamesThatATiltKeeps)
{
    Bench bench;
    Walk(bench, "NN");
    std::vector<Stroke> celestial = bench.picDemo.strokes;
    Walk(bench, "N");
    Scroll(bench.sim, sclViewD, 40);
    Scroll(bench.sim, sclViewD, 75);
    for (Stroke& stroke : celestial) {
        if (stroke.text == "VE") stroke.text = "PM";
        if (stroke.text == "Dec") stroke.text = "Lat";
        if (stroke.text == "RA") stroke.text = "Lon";
    }
    EXPECT_TRUE(celestial == bench.picDemo.strokes);
}

TEST(SphericalCoordinates, SamplePointIsFilledWithTheColourOfTheSceneBefore)
{
    const std::pair<std::string_view, Colour> ways[] = {
        {"NN", RGB(0, 0, 127)}, {"NNTRN", kBlue}, {"NNTNtRN", RGB(31, 31, 159)}};
    for (const auto& [actions, colour] : ways) {
        Bench bench;
        Walk(bench, actions);
        EXPECT_EQ(bench.picDemo.Of(kRing).back().fill, colour) << actions;
    }
}

TEST(SolarDays, CountsAndPlacesTheSecondEarth)
{
    struct { int days; float x, y; std::size_t sectors; std::string text; } const rows[] = {
        {0, 100, 0, 1, "Solar Days =  0     Sidereal Days = 0.00"},
        {60, 51.30f, 85.84f, 1, "Solar Days =  60     Sidereal Days = 60.16"},
        {91, 0.54f, 100, 1, "Solar Days =  91     Sidereal Days = 91.25"},
        {92, -1.18f, 99.99f, 2, "Solar Days =  92     Sidereal Days = 92.25"},
        {273, -1.61f, -99.99f, 2, "Solar Days =  273     Sidereal Days = 273.75"},
        {274, 0.11f, -100, 1, "Solar Days =  274     Sidereal Days = 274.75"},
        {365, 100, -0.43f, 1, "Solar Days =  365     Sidereal Days = 366.00"}};
    Bench bench;
    Walk(bench, "T");
    for (const auto& row : rows) {
        Scroll(bench.sim, sclRange, row.days);
        ExpectRows(bench.picDemo.Of(kLine), 1, {{kLine, 0, 0, row.x, row.y, kYellow}});
        EXPECT_EQ(bench.picDemo.Of(StrokeKind::Sector).size(), 1 + row.sectors) << row.days;
        ExpectRows({bench.picDemo.strokes.back()}, 0, {{kText, -198, 148, 0, 0, kLight, row.text}});
    }
    EXPECT_EQ(DaysText(-4), "Solar Days = -4     Sidereal Days = -4.01");
    EXPECT_TRUE(DaysText(1.797e308).ends_with("0     Sidereal Days = N/A"));
    const auto dots = bench.picDemo.Of(kDots);
    // The tilted meridian: a degree from the pole of the globe, and its ends on the rim.
    struct { double x, y, within; } const places[] = {
        {88.06, 30 * std::sin(kPi / 180), 0.01}, {100, 30, 0.55}, {100, -30, 0.55}};
    for (const auto& [x, y, within] : places)
        EXPECT_TRUE(std::any_of(dots.begin(), dots.end(), [&, x = x, y = y, in = within](auto& dot) {
            return std::hypot(dot.x1 - x, dot.y1 - y) < in;
        })) << y;
}

// The disc beneath could hide a half that is turned the wrong way: its rim is added up instead.
TEST(SolarDays, LitHalfIsHalfADiscTurnedToTheSunEveryDay)
{
    Bench bench;
    Walk(bench, "T");
    for (int days = 1; days <= 365; ++days) {
        Scroll(bench.sim, sclRange, days);
        const auto sectors = bench.picDemo.Of(StrokeKind::Sector);
        const double sun = 2 * kPi * days / 365.25 + kPi;
        double width = 0, towardsSun = 0;
        for (std::size_t at = 1; at < sectors.size(); ++at) {
            const double end = -sectors[at].end;
            const double start = sectors[at].start == -2 * kPi ? 0 : -sectors[at].start;
            width += end - start;
            towardsSun += std::sin(end - sun) - std::sin(start - sun);
        }
        ASSERT_NEAR(width, kPi, 1e-9) << days;
        ASSERT_NEAR(towardsSun, 2, 1e-9) << days;
    }
}

TEST(Clock, PlacesTheEarthByTheLocalDate)
{
    struct { LocalTime time; double offset; int gone; double orbit, x, y, spin; } const rows[] = {
        {{2012, 7, 28, 14, 48, 46}, -4, 209, 215.26, 81.65, 57.73, 437},
        {{2013, 1, 1, 0, 0, 0}, 0, 0, 9.83, -98.53, -17.07, 9},
        {{2012, 2, 29, 12, 0, 0}, 0, 59, 67.82, -37.75, -92.60, 247},
        {{2011, 3, 23, 0, 0, 0}, 1e306, 81, 89.45, -0.96, -100, 89},
        {{2011, 3, 24, 0, 0, 0}, 1e308, 82, 90.43, 0.75, -100, 90},
        {{2011, 6, 23, 0, 0, 0}, 24, 173, 179.88, 100, -0.21, 179},
        {{2011, 9, 23, 0, 0, 0}, 0, 265, 270.31, -0.54, 100, 270},
        {{2011, 12, 23, 0, 0, 0}, 0, 356, 359.75, -100, 0.43, 359},
        {{2012, 12, 31, 23, 59, 59}, 5.5, 365, 368.60, -98.88, -14.95, 728}};
    for (const auto& row : rows) {
        SCOPED_TRACE(ClockText(row.time));
        const EarthOnDial earth =
            PlaceOnDial(DaysGone(row.time), SecondsSinceMidnight(row.time), row.offset);
        EXPECT_EQ(DaysGone(row.time), row.gone);
        EXPECT_NEAR(earth.orbitDeg, row.orbit, kTwoPlaces);
        EXPECT_NEAR(earth.x, row.x, kTwoPlaces);
        EXPECT_NEAR(earth.y, row.y, kTwoPlaces);
        EXPECT_EQ(earth.spinDeg, row.spin);
        EXPECT_TRUE(std::isfinite(earth.spinRad));
        if (std::fabs(row.offset) > 24) continue;
        EXPECT_NEAR(earth.spinRad, (row.spin - 15 * row.offset) * kPi / 180, 1e-9);
    }
    EXPECT_EQ(SecondsSinceMidnight(rows[0].time), 53326);
    EXPECT_NEAR(PlaceOnDial(209, 53326, -4).spinRad, 8.6743, 5e-5);
}

TEST(Clock, OffsetsCrossDatesAndEndWhereYearsDo)
{
    struct { LocalTime time; double offset; std::string_view gmt; } const rows[] = {
        {{2012, 7, 28, 22, 0, 0}, -4, "2012-Jul-29 02:00:00"},
        {{2013, 1, 1, 0, 0, 0}, 5, "2012-Dec-31 19:00:00"},
        {{2012, 12, 31, 23, 59, 59}, -1. / 3600, "2013-Jan-01 00:00:00"},
        {{2012, 2, 29, 23, 30, 0}, -1, "2012-Mar-01 00:30:00"},
        {{2011, 3, 1, 3, 0, 0}, 14, "2011-Feb-28 13:00:00"},
        {{2012, 7, 28, 0, 0, 0}, 5.75, "2012-Jul-27 18:15:00"},
        {{2012, 7, 28, 0, 0, 1}, 3600.72 / 3600, "2012-Jul-27 23:00:00"},
        {{2012, 7, 28, 0, 0, 0}, 734711 * 24, "0001-Jan-01 00:00:00"},
        {{9999, 12, 31, 23, 0, 0}, -1, "N/A"}, {{1, 1, 1, 0, 0, 0}, 0.5, "N/A"},
        {{2012, 7, 28, 0, 0, 0}, 734712 * 24, "N/A"}, {{2012, 7, 28, 0, 0, 0}, -1e308, "N/A"}};
    for (const auto& row : rows)
        EXPECT_EQ(ClockText(HoursEarlier(row.time, row.offset)), row.gmt) << row.offset;
}

TEST(Clock, TickDrawsTheWholeDial)
{
    struct { LocalTime now; std::string offset, gmt, local; std::size_t sectors; } const rows[] = {
        {{2012, 7, 28, 14, 48, 46}, "-4", "2012-Jul-28 18:48:46", "2012-Jul-28 14:48:46", 2},
        {{2013, 1, 1, 0, 0, 0}, "x", "2013-Jan-01 00:00:00", "2013-Jan-01 00:00:00", 1},
        {{2011, 3, 27, 1, 59, 59}, "1", "2011-Mar-27 00:59:59", "2011-Mar-27 01:59:59", 2},
        {{2011, 3, 27, 3, 0, 0}, "1", "2011-Mar-27 02:00:00", "2011-Mar-27 03:00:00", 2},
        {{2011, 10, 30, 2, 0, 0}, "1", "2011-Oct-30 01:00:00", "2011-Oct-30 02:00:00", 1},
        {{2012, 12, 31, 12, 0, 0}, "1e308", "N/A", "2012-Dec-31 12:00:00", 1}};
    Bench bench;
    Walk(bench, "TN");
    EXPECT_TRUE(bench.picDemo.strokes.empty()); // the picture comes with the first tick
    for (const auto& row : rows) {
        bench.platform.now = row.now;
        Type(bench.sim, txtRange, row.offset);
        Walk(bench, "t");
        EXPECT_EQ(bench.picDemo.strokes.front().text,
                  "GMT:  " + row.gmt + "    Local Time:  " + row.local);
        EXPECT_EQ(bench.picDemo.Of(StrokeKind::Sector).size(), row.sectors) << row.local;
        EXPECT_GT(bench.picDemo.Of(kDots).size(), 3 * 175u);
    }
    const std::vector<Stroke> drawn = RowsOf(bench.picDemo);
    ExpectRows(drawn, 1, {
        {kLine, -100, 0, 0, 0, kDark}, {kRing, -100, 0, 30, 0, kDark},
        {kText, -118, 12, 0, 0, kLight, "Winter"}, {kText, -118, 0, 0, 0, kLight, "Solstice"},
        {kLine, 100, 0, 0, 0, kDark}, {kRing, 100, 0, 30, 0, kDark},
        {kText, 82, 12, 0, 0, kLight, "Summer"}, {kText, 82, 0, 0, 0, kLight, "Solstice"},
        {kLine, 0, 100, 0, 0, kDark}, {kRing, 0, 100, 30, 0, kDark},
        {kText, -18, 112, 0, 0, kLight, "Fall"}, {kText, -18, 100, 0, 0, kLight, "Equinox"},
        {kLine, 0, -100, 0, 0, kDark}, {kRing, 0, -100, 30, 0, kDark},
        {kText, -18, -88, 0, 0, kLight, "Spring"}, {kText, -18, -100, 0, 0, kLight, "Equinox"},
        {kRing, 0, 0, 30, 0, RGB(127, 127, 0)}, {kLine, 0, 0, -98.88f, -14.95f, kYellow},
        {kRing, -98.88f, -14.95f, 30, 0, kBlue}});
    EXPECT_EQ(drawn[20].fill, RGB(31, 31, 159)); // the night half over the day's colour
    EXPECT_EQ(drawn.back().colour, kWhite);
}

TEST(Navigator, TypedViewAnglesAreUsedAsTheyAre)
{
    Bench bench;
    const auto drawnWith = [&](std::string text) {
        Type(bench.sim, txtViewD, std::move(text));
        Walk(bench, "B");
        return bench.picDemo.strokes;
    };
    const auto flat = drawnWith("0");
    for (const char* text : {"", "abc", "1e999", "-"}) EXPECT_TRUE(drawnWith(text) == flat) << text;
    EXPECT_TRUE(drawnWith("12.5deg") == drawnWith("12.5"));
    for (const char* text : {"1e308", "-1e308", "1.7976931348623157e308", "-450"})
        for (const Stroke& stroke : drawnWith(text)) // nothing leaves the picture's neighbourhood
            ASSERT_LT(std::hypot(stroke.x1, stroke.y1), 190) << text;
}

// clang-format on

// One random action of a student on the tutorials.
void Meddle(Bench& bench, std::mt19937& random)
{
    static const char* const typed[] = {"", "-", "12", "1e308", "-1e308", "1e-300", "x", "359.5"};
    const int amount = static_cast<int>(random() % 1440) - 720;
    const FieldId field = amount % 2 == 0 ? txtViewD : txtRange;
    switch (random() % 9) {
    case 0:
        Choose(bench.sim, mnSatelliteTracking);
        break;
    case 1:
        Choose(bench.sim, mnTimeStandards);
        break;
    case 2:
        Scroll(bench.sim, sclViewD, amount);
        break;
    case 3:
        Scroll(bench.sim, sclRange, amount);
        break;
    case 4:
        Type(bench.sim, field, typed[random() % std::size(typed)]);
        break;
    case 5:
        Tick(bench.sim, tmrTime);
        break;
    case 6:
        ClickLabel(bench.sim, lblReturnToTutorial);
        break;
    case 7:
        Click(bench.sim, btnBack2);
        break;
    default:
        Click(bench.sim, btnNext2);
        break;
    }
}

// What the student reads of the flight: captions of the planet and the read-outs.
std::vector<std::string> ReadOuts(const Bench& bench)
{
    std::vector<std::string> captions;
    for (int output = 0; output < static_cast<int>(kOutputCount); ++output)
        captions.push_back(bench.Caption(lblOutput(output)));
    for (const LabelId label : {lblPlanet, lblPE, lblKE, lblTE})
        captions.push_back(bench.Caption(label));
    return captions;
}

TEST(Tutorials, NeverDisturbTheFlight)
{
    std::mt19937 random(20120728);
    const std::pair<MenuId, TimerId> flights[] = {
        {mnEarth, tmrSat}, {mnGeo, tmrSat}, {mnES2, tmrES2}, {mnSunSynch, tmrSunSynch}};
    for (const auto& [scenario, timer] : flights) {
        Bench alone, taught;
        taught.picDemo.keeping = false;
        Choose(alone.sim, scenario);
        Choose(taught.sim, scenario);
        for (int action = 0; action < 2500; ++action) {
            Meddle(taught, random);
            if (action % 8 != 0) continue;
            ASSERT_EQ(Tick(alone.sim, timer), std::nullopt);
            ASSERT_EQ(Tick(taught.sim, timer), std::nullopt);
            ASSERT_EQ(ReadOuts(alone), ReadOuts(taught)) << "after action " << action;
        }
        // The polar axes leave their radius behind for the first disc after them, no further.
        for (Bench* bench : {&alone, &taught}) Tick(bench->sim, timer);
        EXPECT_TRUE(alone.picSelvane.strokes == taught.picSelvane.strokes);
    }
}

} // namespace
