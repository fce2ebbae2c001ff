// The two tutorials where a story of strokes is not enough: every day of the year, odd dates and
// views, and that the flight beside them never notices.
#include "replay/stage.h"
#include "tutorials/clock.h"
#include "tutorials/solar_days.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

using namespace selvane;
using raster::Stroke, raster::StrokeKind, replay::Stage;

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kTwoPlaces = 0.00501;

// The tables are read across.
// clang-format off

TEST(SolarDays, AreCountedAsFarAsNumbersGo)
{
    EXPECT_EQ(DaysText(-4), "Solar Days = -4     Sidereal Days = -4.01");
    EXPECT_TRUE(DaysText(1.797e308).ends_with("0     Sidereal Days = N/A"));
}

TEST(SolarDays, LitHalfIsHalfADiscTurnedToTheSunEveryDay)
{
    Stage stage;
    Choose(stage.sim, mnTimeStandards);
    for (int days = 1; days <= 365; ++days) {
        Scroll(stage.sim, sclRange, days);
        const auto sectors = replay::Of(stage.sim.picDemo.drawing, StrokeKind::Sector);
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

TEST(Navigator, NoTypedViewLeavesThePicturesNeighbourhood)
{
    Stage stage;
    for (const char* text : {"1e308", "-1e308", "1.7976931348623157e308", "-450"}) {
        Type(stage.sim, txtViewD, text);
        Click(stage.sim, btnBack2);
        for (const Stroke& stroke : stage.sim.picDemo.drawing.Strokes())
            ASSERT_LT(std::hypot(stroke.at[0], stroke.at[1]), 190) << text;
    }
}

// clang-format on

// One random action of a student on the tutorials.
void Meddle(Simulation& sim, std::mt19937& random)
{
    static const char* const typed[] = {"", "-", "12", "1e308", "-1e308", "1e-300", "x", "359.5"};
    const int amount = static_cast<int>(random() % 1440) - 720;
    const bool even = amount % 2 == 0;
    switch (random() % 8) {
    case 0:
        return void(Choose(sim, even ? mnSatelliteTracking : mnTimeStandards));
    case 1:
        return void(Scroll(sim, even ? sclViewD : sclRange, amount));
    case 2:
        return void(Type(sim, even ? txtViewD : txtRange, typed[random() % std::size(typed)]));
    case 3:
        return void(Tick(sim, tmrTime));
    case 4:
        return void(ClickLabel(sim, lblReturnToTutorial));
    case 5:
        return void(Click(sim, btnBack2));
    default:
        return void(Click(sim, btnNext2));
    }
}

// What the student reads of the flight: all captions but the tutorials' own.
std::vector<std::string> ReadOuts(const Stage& stage)
{
    std::vector<std::string> captions;
    for (const LabelRow& row : LabelTable())
        if (row.id != lblRange)
            captions.push_back(stage.sim.controls.labels[Index(row.id)].caption);
    return captions;
}

TEST(Tutorials, NeverDisturbTheFlight)
{
    std::mt19937 random(20120728);
    const std::pair<MenuId, TimerId> flights[] = {
        {mnEarth, tmrSat}, {mnGeo, tmrSat}, {mnES2, tmrES2}, {mnSunSynch, tmrSunSynch}};
    for (const auto& [scenario, timer] : flights) {
        Stage alone, taught;
        Choose(alone.sim, scenario);
        Choose(taught.sim, scenario);
        for (int action = 0; action < 1000; ++action) {
            Meddle(taught.sim, random);
            if (action % 8 != 0) continue;
            ASSERT_EQ(Tick(alone.sim, timer), std::nullopt);
            ASSERT_EQ(Tick(taught.sim, timer), std::nullopt);
            ASSERT_EQ(ReadOuts(alone), ReadOuts(taught)) << "after action " << action;
        }
        // The polar axes leave their radius behind for the first disc after them, no further.
        for (Stage* stage : {&alone, &taught}) Tick(stage->sim, timer);
        EXPECT_EQ(replay::Digest(alone.sim.picSelvane.drawing),
                  replay::Digest(taught.sim.picSelvane.drawing));
    }
}

} // namespace
