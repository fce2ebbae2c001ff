#include "app/control_table.h"

#include <iterator>

namespace selvane {

// The tables are read across: one control, one line.
// clang-format off

const PictureRow kPicSelvane{"picSelvane", { 16, 8, 800, 600}, kBlack, {224, 224, 224}, {0, 255, 255}};
const PictureRow kPicDemo   {"picDemo",    {824, 8, 400, 300}, kBlack, kBlack, kBlack};

namespace {

using enum Direction;
using enum Alignment;

constexpr ScrollBarRow kScrollBars[] = {
  // name                       direction    min   max  steps  first  place                 caption
  {sclPeri,     "sclPeri",      Horizontal, -200, 1000, 1, 10,   8, { 24, 672, 80, 16}, lblPeriapsis},
  {sclApo,      "sclApo",       Horizontal, -200, 1000, 1, 10,   8, {200, 672, 80, 16}, lblApoapsis},
  {sclPeriE,    "sclPeriE",     Horizontal, -200, 1000, 1, 10,   8, { 24, 712, 80, 16}, lblPeriE},
  {sclE,        "sclE",         Horizontal,  -20,  100, 1, 10,   0, {200, 712, 80, 16}, lblE},
  {sclSMinAxis, "sclSMinAxis",  Horizontal, -200, 1000, 1, 10,  80, { 24, 752, 80, 16}, lblSMin},
  {sclSMajAxis, "sclSMajAxis",  Horizontal, -200, 1000, 1, 10,  80, {200, 752, 80, 16}, lblSMaj},
  {sclIncl,     "sclIncl",      Horizontal, -360,  360, 1,  5,  60, {504, 672, 80, 16}, lblIncl},
  {sclRot,      "sclRot",       Horizontal, -720,  720, 1,  5,   0, {504, 712, 80, 16}, lblRot},
  {sclARGP,     "sclARGP",      Horizontal, -720,  720, 1,  5, 270, {504, 752, 80, 16}, lblARGP},
  {sclView,     "sclView",      Horizontal, -720,  720, 1,  5,   0, {128, 612, 80, 16}, lblView},
  {sclZoom,     "sclZoom",      Horizontal,    1,   20, 1,  1,  12, {736, 612, 33, 16}, lblZoom},
  {sclLR,       "sclLR",        Horizontal, -800,  800, 1, 10,   0, {718, 590, 80, 16}, lblView},
  {sclUD,       "sclUD",        Vertical,   -600,  600, 1, 10,   0, {798, 510, 16, 80}, lblView},
  {sclViewD,    "sclViewD",     Horizontal, -720,  720, 1,  5,  75, {832, 312, 90, 16}, lblViewD},
  {sclRange,    "sclRange",     Horizontal,  -24,   24, 1,  5,  -4, {1096, 312, 90, 16}, lblRange},
};

constexpr FieldRow kFields[] = {
  {txtPeri,     "txtPeri",     "800",  {110, 672, 60, 19}, sclPeri},
  {txtApo,      "txtApo",      "800",  {286, 672, 65, 19}, sclApo},
  {txtPeriE,    "txtPeriE",    "800",  {110, 712, 60, 19}, sclPeriE},
  {txtE,        "txtE",        "0.00", {286, 712, 60, 19}, sclE},
  {txtSMinAxis, "txtSMinAxis", "8000", {110, 752, 60, 19}, sclSMinAxis},
  {txtSMajAxis, "txtSMajAxis", "8000", {286, 752, 60, 19}, sclSMajAxis},
  {txtIncl,     "txtIncl",     "60",   {600, 672, 41, 19}, sclIncl},
  {txtRot,      "txtRot",      "0",    {600, 712, 41, 19}, sclRot},
  {txtARGP,     "txtARGP",     "270",  {600, 752, 41, 19}, sclARGP},
  {txtView,     "txtView",     "0",    {224, 610, 49, 19}, sclView},
  {txtZoom,     "txtZoom",     "1.2",  {776, 610, 33, 19}, sclZoom},
  {txtViewD,    "txtViewD",    "75",   {928, 312, 33, 19}, sclViewD},
  {txtRange,    "txtRange",    "-4",   {1192, 312, 25, 19}, sclRange},
};

constexpr ButtonRow kButtons[] = {
  {btnApsisCalculate, "btnApsisCalculate", "Calculate", Glyph::None,        { 368, 672, 80, 17}, true},
  {btnECalculate,     "btnECalculate",     "Calculate", Glyph::None,        { 368, 712, 80, 17}, true},
  {btnAxisCalculate,  "btnAxisCalculate",  "Calculate", Glyph::None,        { 368, 752, 80, 17}, true},
  {btnReverse,        "btnReverse",        "",          Glyph::StepBack,    { 384, 612, 22, 22}, true},
  {btnPause,          "btnPause",          "",          Glyph::Pause,       { 405, 612, 22, 22}, true},
  {btnPlay,           "btnPlay",           "",          Glyph::Play,        { 405, 612, 22, 22}, false},
  {btnAdvance,        "btnAdvance",        "",          Glyph::StepForward, { 424, 612, 22, 22}, true},
  {btnBack2,          "btnBack2",          "",          Glyph::StepBack,    {1002, 312, 22, 18}, true},
  {btnNext2,          "btnNext2",          "",          Glyph::StepForward, {1024, 312, 22, 18}, true},
  {Command1,          "Command1",          "",          Glyph::None,        { 798, 590, 16, 16}, true},
};

constexpr Colour kReadOut{0, 0, 192};
constexpr Colour kLink{0, 0, 255};

constexpr LabelRow ReadOut(int index, std::string_view name, std::string_view caption, int left,
                           int top, std::string_view toolTip, Colour colour = kReadOut)
{
    return {lblOutput(index), name, caption, {left, top, 0, 0}, Left, Weight::Regular,
            Underline::No, 9, colour, Backdrop::None, toolTip};
}

constexpr LabelRow Caption(LabelId id, std::string_view name, std::string_view caption, Place place,
                           Alignment alignment, Backdrop backdrop, std::string_view toolTip)
{
    return {id, name, caption, place, alignment, Weight::Regular, Underline::No, 9, std::nullopt,
            backdrop, toolTip};
}

constexpr LabelRow Heading(LabelId id, std::string_view name, std::string_view caption, Place place)
{
    return {id, name, caption, place, Left, Weight::Bold, Underline::No, 9, std::nullopt,
            Backdrop::Window, ""};
}

constexpr LabelRow Blue(LabelId id, std::string_view name, std::string_view caption, Place place,
                        Underline underline, Backdrop backdrop, std::string_view toolTip)
{
    return {id, name, caption, place, Left, Weight::Regular, underline, 9, kLink, backdrop, toolTip};
}

constexpr LabelRow kLabels[] = {
  ReadOut( 0, "lblOutput(0)",  "Period",           664, 736, "The time required for the satellite to make one full orbit of the planet."),
  ReadOut( 1, "lblOutput(1)",  "Eclipse",          854, 736, "The portion of the orbit that the satellite is in the planet's shadow.", kLink),
  ReadOut( 2, "lblOutput(2)",  "Semi-Minor Axis", 1054, 752, "Half of the width of the orbit."),
  ReadOut( 3, "lblOutput(3)",  "Semi-Major Axis", 1054, 768, "Half of the length of the orbit."),
  ReadOut( 4, "lblOutput(4)",  "Eccentriicity",   1054, 736, "A measure of the length versus the width of an elliptical orbit."),
  ReadOut( 5, "lblOutput(5)",  "Perigee",          664, 768, "The point of the orbit closest to the planet."),
  ReadOut( 6, "lblOutput(6)",  "Apogee",           854, 768, "The point of the orbit farthest from the planet."),
  ReadOut( 7, "lblOutput(7)",  "RAAN",             664, 752, "The angle btween the Vernal Equinox and the point where the satellite crosses the equator going from south to north. "),
  ReadOut( 8, "lblOutput(8)",  "ARGP",             854, 752, "The  angle from the periapsis to the ascending node."),
  ReadOut( 9, "lblOutput(9)",  "Velocity",        1054, 684, "The speed of the satellite in the direction of the orbit."),
  ReadOut(10, "lblOutput(10)", "True Anomaly",     664, 684, "The angle between the periapsis and the current position of the satellite."),
  ReadOut(11, "lblOutput(11)", "Altitude",         854, 684, "The distance between the surface of the planet and the current position of the satellite."),
  ReadOut(12, "lblOutput(12)", "RA",               664, 700, "The angle between the vernal equinox and the point where the satellite crosses the equator."),
  ReadOut(13, "lblOutput(13)", "Dec",              774, 700, "The angle going north, between the equator and the current position of the satellite."),
  ReadOut(14, "lblOutput(14)", "GMT",             1104, 700, " The time at the prime meridian, running through Greenwich, UK."),
  ReadOut(15, "lblOutput(15)", "Lon",              884, 700, "The angle going east, between the prime meidian and the current position of the satellite."),
  ReadOut(16, "lblOutput(16)", "Lat",              994, 700, "The angle going north, between the equator and the current position of the satellite."),

  {lblPlanet, "lblPlanet", "Planet Data", {4, 4, 793, 25}, Left, Weight::Bold, Underline::No, 9.75, kWhite, Backdrop::None, ""},
  Caption(lblView, "lblView", "Orbit View (Deg.)", { 25, 612, 92, 14}, Right, Backdrop::Window, "Changes the viewing angle of the planet and the orbit."),
  Caption(lblZoom, "lblZoom", "Zoom",              {696, 612, 30, 14}, Right, Backdrop::Window, "Increases or decreases the size of the screen objects."),
  Blue(lblReturnToTutorial, "lblReturnToTutorial", "Return to Tutorial", {968, 612, 105, 17}, Underline::Yes, Backdrop::Window, ""),
  Heading(lblOrbitShape,    "lblOrbitShape",    "Orbit Shape",      { 24, 648, 58, 14}),
  Heading(lblOrbitPosition, "lblOrbitPosition", "Orbit Position",   {504, 648, 67, 14}),
  Heading(Label2,           "Label2",           "Orbit Parameters", {664, 648, 85, 14}),
  Blue(lblOrbitalEnergy1, "lblOrbitalEnergy1", "Orbital Energies (MJ/kg):", {664, 668, 133, 14}, Underline::Yes, Backdrop::None, "Orital Energies in million joules per kilogram"),
  Blue(lblPE, "lblPE", "Potential", { 810, 668, 50, 14}, Underline::No, Backdrop::None, ""),
  Blue(lblKE, "lblKE", "Kinetic",   { 940, 668, 37, 14}, Underline::No, Backdrop::None, ""),
  Blue(lblTE, "lblTE", "Total",     {1070, 668, 28, 14}, Underline::No, Backdrop::None, ""),
  Caption(lblPeriapsis, "lblPeriapsis", "Periapsis (km)",       { 24, 688, 153, 17}, Centre, Backdrop::None, "The closest point of the orbit to the planet."),
  Caption(lblApoapsis,  "lblApoapsis",  "Apoapsis (km)",        {200, 688, 153, 17}, Centre, Backdrop::None, "The farthest point of the orbit to the planet."),
  Caption(lblPeriE,     "lblPeriE",     "Periapsis (km)",       { 24, 728, 153, 17}, Centre, Backdrop::None, "The closest point of the orbit to the planet."),
  Caption(lblE,         "lblE",         "Eccentricity",         {208, 728, 153, 17}, Centre, Backdrop::None, "A measure of the length versus the width of an elliptical orbit."),
  Caption(lblSMin,      "lblSMin",      "Semi-Minor Axis (km)", { 24, 768, 153, 17}, Centre, Backdrop::None, "Half of the width of the orbit."),
  Caption(lblSMaj,      "lblSMaj",      "Semi-Major Axis (km)", {200, 768, 153, 17}, Centre, Backdrop::None, "Half of the length of the orbit."),
  Caption(lblIncl,      "lblIncl",      "Inclination (Deg.)",   {504, 688, 137, 17}, Centre, Backdrop::None, "The angle between the orbital plane and the plane of the equator."),
  Caption(lblRot,       "lblRot",       "RAAN (Deg.)",          {504, 728, 145, 17}, Centre, Backdrop::None, "Right Ascension of the ascending node.   The point where the satellite crosses the equator going from south to north.  "),
  Caption(lblARGP,      "lblARGP",      "ARGP (Deg.)",          {504, 768, 137, 17}, Centre, Backdrop::None, "Argument of the Perigee.  The  angle (measured at the center of the earth) from the ascending node to perigee."),
  Caption(lblViewD,     "lblViewD",     "Change View (deg.)",   {840, 328, 105, 17}, Centre, Backdrop::Window, "Changes the viewing angle of the screen objects."),
  Caption(lblRange,     "lblRange",     "GMT Offset",           {1104, 328, 105, 17}, Centre, Backdrop::Window, "The difference between GMT and local time."),
};

constexpr TimerRow kTimers[] = {
  {tmrSat, "tmrSat", 250}, {tmrES2, "tmrES2", 50}, {tmrSunSynch, "tmrSunSynch", 50},
  {tmrTime, "tmrTime", 250},
};

constexpr MenuRow kMenus[] = {
  // name                                      caption                   under       checkable, checked
  {mnFile,              "mnFile",              "File",                   std::nullopt, false, false},
  {mnView,              "mnView",              "View",                   std::nullopt, false, false},
  {mnViewSatellite,     "mnViewSatellite",     "Satellite",              mnView,       true,  true},
  {mnOrbitalEnergy,     "mnOrbitalEnergy",     "Orbital Energy",         mnView,       true,  true},
  {mnMovies,            "mnMovies",            "Demos",                  std::nullopt, false, false},
  {mnES2,               "mnES2",               "Earth-Sun Orbit",        mnMovies,     true,  false},
  {mnSunSynch,          "mnSunSynch",          "Sun Synchronous Orbit",  mnMovies,     true,  false},
  {mnGeo,               "mnGeo",               "Geosynchronous Orbit",   mnMovies,     true,  false},
  {mnMoly,              "mnMoly",              "Molniya Orbit",          mnMovies,     true,  false},
  {mnTutorials,         "mnTutorials",         "Tutorials",              std::nullopt, false, false},
  {mnSatelliteTracking, "mnSatelliteTracking", "Reference Frames",       mnTutorials,  true,  false},
  {mnTimeStandards,     "mnTimeStandards",     "Time Standards",         mnTutorials,  true,  false},
  {mnPlanet,            "mnPlanet",            "Planet",                 std::nullopt, false, false},
  {mnMercury,           "mnMercury",           "Mercury",                mnPlanet,     true,  false},
  {mnVenus,             "mnVenus",             "Venus",                  mnPlanet,     true,  false},
  {mnEarth,             "mnEarth",             "Earth",                  mnPlanet,     true,  true},
  {mnMars,              "mnMars",              "Mars",                   mnPlanet,     true,  false},
  {mnJupiter,           "mnJupiter",           "Jupiter",                mnPlanet,     true,  false},
  {mnHelp,              "mnHelp",              "Help",                   std::nullopt, false, false},
  {mnUserGuide,         "mnUserGuide",         "User Guide",             mnHelp,       false, false},
  {mnSeparator,         "mnSeparator",         "",                       mnHelp,       false, false},
  {mnAbout,             "mnAbout",             "About Selvane ...",      mnHelp,       false, false},
};

constexpr FrameRow kFrames[] = {
  {"shpShape", { 16, 656, 473, 137}, std::nullopt},
  {"Shape2",   {496, 656, 153, 137}, std::nullopt},
  {"Shape1",   {656, 656, 568, 137}, kWhite},
};

constexpr ShapePairRow kShapePairs[] = {
  {ShapePair::Apsis, {sclPeri, sclApo},         {txtPeri, txtApo},         btnApsisCalculate, {20, 669, 432, 37}},
  {ShapePair::E,     {sclPeriE, sclE},          {txtPeriE, txtE},          btnECalculate,     {20, 709, 432, 37}},
  {ShapePair::Axis,  {sclSMinAxis, sclSMajAxis}, {txtSMinAxis, txtSMajAxis}, btnAxisCalculate, {20, 749, 432, 37}},
};

// Row by row, as they stand in the window.
constexpr std::string_view kReadingOrder[] = {
    "sclUD", "sclLR", "Command1",
    "sclView", "txtView", "btnReverse", "btnPause", "btnPlay", "btnAdvance", "sclZoom", "txtZoom",
    "sclPeri", "txtPeri", "sclApo", "txtApo", "btnApsisCalculate",
    "sclPeriE", "txtPeriE", "sclE", "txtE", "btnECalculate",
    "sclSMinAxis", "txtSMinAxis", "sclSMajAxis", "txtSMajAxis", "btnAxisCalculate",
    "sclIncl", "txtIncl", "sclRot", "txtRot", "sclARGP", "txtARGP",
    "sclViewD", "txtViewD", "btnBack2", "btnNext2", "sclRange", "txtRange",
    "txtHelp", "lblReturnToTutorial",
};

// clang-format on

template <typename Row, std::size_t kRows> constexpr bool InOrder(const Row (&rows)[kRows])
{
    for (std::size_t at = 0; at < kRows; ++at)
        if (Index(rows[at].id) != at) return false;
    return true;
}

// The corner counts: the heading of a panel stands on its upper edge.
bool Contains(const Place& panel, const Place& label)
{
    return label.left > panel.left && label.left < panel.left + panel.width &&
           label.top > panel.top && label.top < panel.top + panel.height;
}

static_assert(std::size(kScrollBars) == kScrollBarCount && InOrder(kScrollBars));
static_assert(std::size(kFields) == kFieldCount && InOrder(kFields));
static_assert(std::size(kButtons) == kButtonCount && InOrder(kButtons));
static_assert(std::size(kLabels) == kLabelCount && InOrder(kLabels));
static_assert(std::size(kTimers) == kTimerCount && InOrder(kTimers));
static_assert(std::size(kMenus) == kMenuCount && InOrder(kMenus));

} // namespace

std::span<const ScrollBarRow> ScrollBarTable()
{
    return kScrollBars;
}
std::span<const FieldRow> FieldTable()
{
    return kFields;
}
std::span<const ButtonRow> ButtonTable()
{
    return kButtons;
}
std::span<const LabelRow> LabelTable()
{
    return kLabels;
}
std::span<const TimerRow> TimerTable()
{
    return kTimers;
}
std::span<const MenuRow> MenuTable()
{
    return kMenus;
}
std::span<const FrameRow> FrameTable()
{
    return kFrames;
}
std::span<const ShapePairRow> ShapePairTable()
{
    return kShapePairs;
}

std::optional<int> RoomOf(LabelId label)
{
    constexpr int kGap = 4; // pixels, to the neighbour or to the panel's edge
    const Place& place = kLabels[Index(label)].place;
    for (const FrameRow& panel : kFrames) {
        if (!panel.fill || !Contains(panel.place, place)) continue;
        int end = panel.place.left + panel.place.width;
        for (const LabelRow& other : kLabels)
            if (other.place.top == place.top && other.place.left > place.left)
                end = std::min(end, other.place.left);
        return end - kGap - place.left;
    }
    return std::nullopt;
}

std::span<const std::string_view> ReadingOrder()
{
    return kReadingOrder;
}

} // namespace selvane
