// The control table typed a second time: one line a control.
#include "app/control_table.h"
#include "app/simulation.h"
#include "bench.h"

#include <gtest/gtest.h>
#include <set>

namespace selvane {
namespace {

using enum Direction;
using enum Alignment;

void ExpectPlace(const Place& place, int left, int top, int width, int height)
{
    EXPECT_EQ(place.left, left);
    EXPECT_EQ(place.top, top);
    EXPECT_EQ(place.width, width);
    EXPECT_EQ(place.height, height);
}

void ExpectBar(ScrollBarId id, std::string_view name, Direction direction, int min, int max,
               int large, int value, Place place)
{
    SCOPED_TRACE(name);
    const ScrollBarRow& row = ScrollBarTable()[Index(id)];
    EXPECT_EQ(row.name, name);
    EXPECT_EQ(row.direction, direction);
    EXPECT_EQ(row.min, min);
    EXPECT_EQ(row.max, max);
    EXPECT_EQ(row.smallChange, 1);
    EXPECT_EQ(row.largeChange, large);
    EXPECT_EQ(row.value, value);
    ExpectPlace(row.place, place.left, place.top, place.width, place.height);
}

void ExpectField(FieldId id, std::string_view name, std::string_view text, Place place,
                 ScrollBarId bar)
{
    SCOPED_TRACE(name);
    const FieldRow& row = FieldTable()[Index(id)];
    EXPECT_EQ(row.name, name);
    EXPECT_EQ(row.text, text);
    EXPECT_EQ(row.bar, bar);
    ExpectPlace(row.place, place.left, place.top, place.width, place.height);
}

void ExpectButton(ButtonId id, std::string_view name, std::string_view caption, Glyph glyph,
                  Place place, bool visible)
{
    SCOPED_TRACE(name);
    const ButtonRow& row = ButtonTable()[Index(id)];
    EXPECT_EQ(row.name, name);
    EXPECT_EQ(row.caption, caption);
    EXPECT_EQ(row.glyph, glyph);
    EXPECT_EQ(row.visible, visible);
    ExpectPlace(row.place, place.left, place.top, place.width, place.height);
}

struct Look
{
    Alignment alignment = Left;
    Weight weight = Weight::Regular;
    Underline underline = Underline::No;
    std::optional<Colour> colour = std::nullopt;
    Backdrop backdrop = Backdrop::Window;
    double points = 9;
};

void ExpectLabel(LabelId id, std::string_view name, std::string_view caption, Place place,
                 const Look& look, std::string_view toolTip)
{
    SCOPED_TRACE(name);
    const LabelRow& row = LabelTable()[Index(id)];
    EXPECT_EQ(row.name, name);
    EXPECT_EQ(row.caption, caption);
    EXPECT_EQ(row.alignment, look.alignment);
    EXPECT_EQ(row.weight, look.weight);
    EXPECT_EQ(row.underline, look.underline);
    EXPECT_EQ(row.colour, look.colour);
    EXPECT_EQ(row.backdrop, look.backdrop);
    EXPECT_EQ(row.points, look.points);
    EXPECT_EQ(row.toolTip, toolTip);
    ExpectPlace(row.place, place.left, place.top, place.width, place.height);
}

void ExpectReadOut(int index, std::string_view caption, int left, int top, std::string_view toolTip)
{
    const Look look{Left, Weight::Regular, Underline::No,
                    index == 1 ? RGB(0, 0, 255) : RGB(0, 0, 192), Backdrop::None};
    ExpectLabel(lblOutput(index), "lblOutput(" + std::to_string(index) + ")", caption,
                {left, top, 0, 0}, look, toolTip);
}

enum class Mark { None, Off, On };

void ExpectItem(MenuId id, std::string_view name, std::string_view caption,
                std::optional<MenuId> under, Mark mark)
{
    SCOPED_TRACE(name);
    const MenuRow& row = MenuTable()[Index(id)];
    EXPECT_EQ(row.name, name);
    EXPECT_EQ(row.caption, caption);
    EXPECT_EQ(row.under, under);
    EXPECT_EQ(row.checkable, mark != Mark::None);
    EXPECT_EQ(row.checked, mark == Mark::On);
}

// clang-format off

TEST(ControlTable, Bars)
{
    ExpectBar(sclPeri, "sclPeri", Horizontal, -200, 1000, 10, 8, {24, 672, 80, 16});
    ExpectBar(sclApo, "sclApo", Horizontal, -200, 1000, 10, 8, {200, 672, 80, 16});
    ExpectBar(sclPeriE, "sclPeriE", Horizontal, -200, 1000, 10, 8, {24, 712, 80, 16});
    ExpectBar(sclE, "sclE", Horizontal, -20, 100, 10, 0, {200, 712, 80, 16});
    ExpectBar(sclSMinAxis, "sclSMinAxis", Horizontal, -200, 1000, 10, 80, {24, 752, 80, 16});
    ExpectBar(sclSMajAxis, "sclSMajAxis", Horizontal, -200, 1000, 10, 80, {200, 752, 80, 16});
    ExpectBar(sclIncl, "sclIncl", Horizontal, -360, 360, 5, 60, {504, 672, 80, 16});
    ExpectBar(sclRot, "sclRot", Horizontal, -720, 720, 5, 0, {504, 712, 80, 16});
    ExpectBar(sclARGP, "sclARGP", Horizontal, -720, 720, 5, 270, {504, 752, 80, 16});
    ExpectBar(sclView, "sclView", Horizontal, -720, 720, 5, 0, {128, 612, 80, 16});
    ExpectBar(sclZoom, "sclZoom", Horizontal, 1, 20, 1, 12, {736, 612, 33, 16});
    ExpectBar(sclLR, "sclLR", Horizontal, -800, 800, 10, 0, {718, 590, 80, 16});
    ExpectBar(sclUD, "sclUD", Vertical, -600, 600, 10, 0, {798, 510, 16, 80});
    ExpectBar(sclViewD, "sclViewD", Horizontal, -720, 720, 5, 75, {832, 312, 90, 16});
    ExpectBar(sclRange, "sclRange", Horizontal, -24, 24, 5, -4, {1096, 312, 90, 16});
}

TEST(ControlTable, Fields)
{
    ExpectField(txtPeri, "txtPeri", "800", {110, 672, 60, 19}, sclPeri);
    ExpectField(txtApo, "txtApo", "800", {286, 672, 65, 19}, sclApo);
    ExpectField(txtPeriE, "txtPeriE", "800", {110, 712, 60, 19}, sclPeriE);
    ExpectField(txtE, "txtE", "0.00", {286, 712, 60, 19}, sclE);
    ExpectField(txtSMinAxis, "txtSMinAxis", "8000", {110, 752, 60, 19}, sclSMinAxis);
    ExpectField(txtSMajAxis, "txtSMajAxis", "8000", {286, 752, 60, 19}, sclSMajAxis);
    ExpectField(txtIncl, "txtIncl", "60", {600, 672, 41, 19}, sclIncl);
    ExpectField(txtRot, "txtRot", "0", {600, 712, 41, 19}, sclRot);
    ExpectField(txtARGP, "txtARGP", "270", {600, 752, 41, 19}, sclARGP);
    ExpectField(txtView, "txtView", "0", {224, 610, 49, 19}, sclView);
    ExpectField(txtZoom, "txtZoom", "1.2", {776, 610, 33, 19}, sclZoom);
    ExpectField(txtViewD, "txtViewD", "75", {928, 312, 33, 19}, sclViewD);
    ExpectField(txtRange, "txtRange", "-4", {1192, 312, 25, 19}, sclRange);
}

TEST(ControlTable, Buttons)
{
    ExpectButton(btnApsisCalculate, "btnApsisCalculate", "Calculate", Glyph::None, {368, 672, 80, 17}, true);
    ExpectButton(btnECalculate, "btnECalculate", "Calculate", Glyph::None, {368, 712, 80, 17}, true);
    ExpectButton(btnAxisCalculate, "btnAxisCalculate", "Calculate", Glyph::None, {368, 752, 80, 17}, true);
    ExpectButton(btnReverse, "btnReverse", "", Glyph::StepBack, {384, 612, 22, 22}, true);
    ExpectButton(btnPause, "btnPause", "", Glyph::Pause, {405, 612, 22, 22}, true);
    ExpectButton(btnPlay, "btnPlay", "", Glyph::Play, {405, 612, 22, 22}, false);
    ExpectButton(btnAdvance, "btnAdvance", "", Glyph::StepForward, {424, 612, 22, 22}, true);
    ExpectButton(btnBack2, "btnBack2", "", Glyph::StepBack, {1002, 312, 22, 18}, true);
    ExpectButton(btnNext2, "btnNext2", "", Glyph::StepForward, {1024, 312, 22, 18}, true);
    ExpectButton(Command1, "Command1", "", Glyph::None, {798, 590, 16, 16}, true);
}

TEST(ControlTable, ReadOuts)
{
    ExpectReadOut(0, "Period", 664, 736, "The time required for the satellite to make one full orbit of the planet.");
    ExpectReadOut(1, "Eclipse", 854, 736, "The portion of the orbit that the satellite is in the planet's shadow.");
    ExpectReadOut(2, "Semi-Minor Axis", 1054, 752, "Half of the width of the orbit.");
    ExpectReadOut(3, "Semi-Major Axis", 1054, 768, "Half of the length of the orbit.");
    ExpectReadOut(4, "Eccentriicity", 1054, 736, "A measure of the length versus the width of an elliptical orbit.");
    ExpectReadOut(5, "Perigee", 664, 768, "The point of the orbit closest to the planet.");
    ExpectReadOut(6, "Apogee", 854, 768, "The point of the orbit farthest from the planet.");
    ExpectReadOut(7, "RAAN", 664, 752, "The angle btween the Vernal Equinox and the point where the satellite crosses the equator going from south to north. ");
    ExpectReadOut(8, "ARGP", 854, 752, "The  angle from the periapsis to the ascending node.");
    ExpectReadOut(9, "Velocity", 1054, 684, "The speed of the satellite in the direction of the orbit.");
    ExpectReadOut(10, "True Anomaly", 664, 684, "The angle between the periapsis and the current position of the satellite.");
    ExpectReadOut(11, "Altitude", 854, 684, "The distance between the surface of the planet and the current position of the satellite.");
    ExpectReadOut(12, "RA", 664, 700, "The angle between the vernal equinox and the point where the satellite crosses the equator.");
    ExpectReadOut(13, "Dec", 774, 700, "The angle going north, between the equator and the current position of the satellite.");
    ExpectReadOut(14, "GMT", 1104, 700, " The time at the prime meridian, running through Greenwich, UK.");
    ExpectReadOut(15, "Lon", 884, 700, "The angle going east, between the prime meidian and the current position of the satellite.");
    ExpectReadOut(16, "Lat", 994, 700, "The angle going north, between the equator and the current position of the satellite.");
}

TEST(ControlTable, Labels)
{
    constexpr Colour kLink{0, 0, 255};
    constexpr auto kRegular = Weight::Regular;
    constexpr auto kBold = Weight::Bold;
    constexpr auto kPlain = Underline::No;
    constexpr auto kLine = Underline::Yes;
    constexpr auto kNone = Backdrop::None;
    constexpr auto kWindow = Backdrop::Window;
    ExpectLabel(lblPlanet, "lblPlanet", "Planet Data", {4, 4, 793, 25}, {Left, kBold, kPlain, kWhite, kNone, 9.75}, "");
    ExpectLabel(lblView, "lblView", "Orbit View (Deg.)", {25, 612, 92, 14}, {Right, kRegular, kPlain, std::nullopt, kWindow}, "Changes the viewing angle of the planet and the orbit.");
    ExpectLabel(lblZoom, "lblZoom", "Zoom", {696, 612, 30, 14}, {Right, kRegular, kPlain, std::nullopt, kWindow}, "Increases or decreases the size of the screen objects.");
    ExpectLabel(lblReturnToTutorial, "lblReturnToTutorial", "Return to Tutorial", {968, 612, 105, 17}, {Left, kRegular, kLine, kLink, kWindow}, "");
    ExpectLabel(lblOrbitShape, "lblOrbitShape", "Orbit Shape", {24, 648, 58, 14}, {Left, kBold, kPlain, std::nullopt, kWindow}, "");
    ExpectLabel(lblOrbitPosition, "lblOrbitPosition", "Orbit Position", {504, 648, 67, 14}, {Left, kBold, kPlain, std::nullopt, kWindow}, "");
    ExpectLabel(Label2, "Label2", "Orbit Parameters", {664, 648, 85, 14}, {Left, kBold, kPlain, std::nullopt, kWindow}, "");
    ExpectLabel(lblOrbitalEnergy1, "lblOrbitalEnergy1", "Orbital Energies (MJ/kg):", {664, 668, 133, 14}, {Left, kRegular, kLine, kLink, kNone}, "Orital Energies in million joules per kilogram");
    ExpectLabel(lblPE, "lblPE", "Potential", {810, 668, 50, 14}, {Left, kRegular, kPlain, kLink, kNone}, "");
    ExpectLabel(lblKE, "lblKE", "Kinetic", {940, 668, 37, 14}, {Left, kRegular, kPlain, kLink, kNone}, "");
    ExpectLabel(lblTE, "lblTE", "Total", {1070, 668, 28, 14}, {Left, kRegular, kPlain, kLink, kNone}, "");
    ExpectLabel(lblPeriapsis, "lblPeriapsis", "Periapsis (km)", {24, 688, 153, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "The closest point of the orbit to the planet.");
    ExpectLabel(lblApoapsis, "lblApoapsis", "Apoapsis (km)", {200, 688, 153, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "The farthest point of the orbit to the planet.");
    ExpectLabel(lblPeriE, "lblPeriE", "Periapsis (km)", {24, 728, 153, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "The closest point of the orbit to the planet.");
    ExpectLabel(lblE, "lblE", "Eccentricity", {208, 728, 153, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "A measure of the length versus the width of an elliptical orbit.");
    ExpectLabel(lblSMin, "lblSMin", "Semi-Minor Axis (km)", {24, 768, 153, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "Half of the width of the orbit.");
    ExpectLabel(lblSMaj, "lblSMaj", "Semi-Major Axis (km)", {200, 768, 153, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "Half of the length of the orbit.");
    ExpectLabel(lblIncl, "lblIncl", "Inclination (Deg.)", {504, 688, 137, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "The angle between the orbital plane and the plane of the equator.");
    ExpectLabel(lblRot, "lblRot", "RAAN (Deg.)", {504, 728, 145, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "Right Ascension of the ascending node.   The point where the satellite crosses the equator going from south to north.  ");
    ExpectLabel(lblARGP, "lblARGP", "ARGP (Deg.)", {504, 768, 137, 17}, {Centre, kRegular, kPlain, std::nullopt, kNone}, "Argument of the Perigee.  The  angle (measured at the center of the earth) from the ascending node to perigee.");
    ExpectLabel(lblViewD, "lblViewD", "Change View (deg.)", {840, 328, 105, 17}, {Centre, kRegular, kPlain, std::nullopt, kWindow}, "Changes the viewing angle of the screen objects.");
    ExpectLabel(lblRange, "lblRange", "GMT Offset", {1104, 328, 105, 17}, {Centre, kRegular, kPlain, std::nullopt, kWindow}, "The difference between GMT and local time.");
}

TEST(ControlTable, Menu)
{
    ExpectItem(mnFile, "mnFile", "File", std::nullopt, Mark::None);
    ExpectItem(mnView, "mnView", "View", std::nullopt, Mark::None);
    ExpectItem(mnViewSatellite, "mnViewSatellite", "Satellite", mnView, Mark::On);
    ExpectItem(mnOrbitalEnergy, "mnOrbitalEnergy", "Orbital Energy", mnView, Mark::On);
    ExpectItem(mnMovies, "mnMovies", "Demos", std::nullopt, Mark::None);
    ExpectItem(mnES2, "mnES2", "Earth-Sun Orbit", mnMovies, Mark::Off);
    ExpectItem(mnSunSynch, "mnSunSynch", "Sun Synchronous Orbit", mnMovies, Mark::Off);
    ExpectItem(mnGeo, "mnGeo", "Geosynchronous Orbit", mnMovies, Mark::Off);
    ExpectItem(mnMoly, "mnMoly", "Molniya Orbit", mnMovies, Mark::Off);
    ExpectItem(mnTutorials, "mnTutorials", "Tutorials", std::nullopt, Mark::None);
    ExpectItem(mnSatelliteTracking, "mnSatelliteTracking", "Reference Frames", mnTutorials, Mark::Off);
    ExpectItem(mnTimeStandards, "mnTimeStandards", "Time Standards", mnTutorials, Mark::Off);
    ExpectItem(mnPlanet, "mnPlanet", "Planet", std::nullopt, Mark::None);
    ExpectItem(mnMercury, "mnMercury", "Mercury", mnPlanet, Mark::Off);
    ExpectItem(mnVenus, "mnVenus", "Venus", mnPlanet, Mark::Off);
    ExpectItem(mnEarth, "mnEarth", "Earth", mnPlanet, Mark::On);
    ExpectItem(mnMars, "mnMars", "Mars", mnPlanet, Mark::Off);
    ExpectItem(mnJupiter, "mnJupiter", "Jupiter", mnPlanet, Mark::Off);
    ExpectItem(mnHelp, "mnHelp", "Help", std::nullopt, Mark::None);
    ExpectItem(mnUserGuide, "mnUserGuide", "User Guide", mnHelp, Mark::None);
    ExpectItem(mnSeparator, "mnSeparator", "", mnHelp, Mark::None);
    ExpectItem(mnAbout, "mnAbout", "About Selvane ...", mnHelp, Mark::None);
}

// clang-format on

TEST(ControlTable, TimersPicturesFramesAndTheWindow)
{
    const std::pair<std::string_view, int> timers[] = {
        {"tmrSat", 250}, {"tmrES2", 50}, {"tmrSunSynch", 50}, {"tmrTime", 250}};
    ASSERT_EQ(TimerTable().size(), std::size(timers));
    for (std::size_t at = 0; at < std::size(timers); ++at) {
        EXPECT_EQ(TimerTable()[at].name, timers[at].first);
        EXPECT_EQ(TimerTable()[at].intervalMs, timers[at].second);
    }
    ExpectPlace(kPicSelvane.place, 16, 8, 800, 600);
    ExpectPlace(kPicDemo.place, 824, 8, 400, 300);
    EXPECT_EQ(kPicSelvane.background, kBlack);
    EXPECT_EQ(kPicDemo.background, kBlack);
    ExpectPlace(kHelpPane, 824, 352, 400, 256);
    ExpectPlace(kWindowOuter, 0, 0, 1254, 887);
    EXPECT_EQ(kClientWidth, 1243);
    EXPECT_EQ(kClientHeight, 827);
    EXPECT_EQ(kWindowColour, RGB(224, 224, 224));
    EXPECT_EQ(kMarkerSize, 5);

    const auto frames = FrameTable();
    ASSERT_EQ(frames.size(), 3u);
    ExpectPlace(frames[0].place, 16, 656, 473, 137);
    ExpectPlace(frames[1].place, 496, 656, 153, 137);
    ExpectPlace(frames[2].place, 656, 656, 568, 137);
    EXPECT_EQ(frames[2].fill, kWhite);
}

// Names are what scripts, screen readers and tests find a control by.
TEST(ControlTable, NoNameTwice)
{
    std::set<std::string_view> names;
    const auto add = [&names](const auto& table) {
        for (const auto& row : table) EXPECT_TRUE(names.insert(row.name).second) << row.name;
    };
    add(ScrollBarTable());
    add(FieldTable());
    add(ButtonTable());
    add(LabelTable());
    add(TimerTable());
    add(MenuTable());
    add(FrameTable());
}

// What the surfaces hold once the window is loaded and nothing has been drawn.
TEST(ControlTable, PicturesAtLoad)
{
    Recorder main(800, 600), tutorial(400, 300);
    FakePlatform platform;
    Simulation sim(main, tutorial, platform, TheWiring());
    Load(sim);
    EXPECT_EQ(main.FillStyle, Fill::Solid);
    EXPECT_EQ(tutorial.ForeColor, kBlack);
    EXPECT_EQ(tutorial.FillColor, kBlack);
    for (const DrawingSurface* picture : {&sim.picSelvane, &sim.picDemo}) {
        EXPECT_EQ(picture->ScaleLeft, -picture->Width / 2);
        EXPECT_EQ(picture->ScaleTop, picture->Height / 2);
        EXPECT_EQ(picture->ScaleWidth, picture->Width);
        EXPECT_EQ(picture->ScaleHeight, -picture->Height);
    }
}

} // namespace
} // namespace selvane
