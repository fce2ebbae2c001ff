#include "replay/invariants.h"

#include "app/control_table.h"
#include "replay/sim_fields.h"

#include <initializer_list>

namespace selvane::replay {

bool SaysNothingOdd(std::string_view text)
{
    for (const std::string_view odd : {"nan", "inf", "NaN", "INF"})
        if (text.find(odd) != std::string_view::npos) return false;
    for (std::size_t at = 1; at + 1 < text.size(); ++at) { // an exponent
        const auto digit = [&](std::size_t place) {
            return text[place] >= '0' && text[place] <= '9';
        };
        if (text[at] == 'e' && digit(at - 1) &&
            (text[at + 1] == '+' || text[at + 1] == '-' || digit(at + 1)))
            return false;
    }
    return true;
}

namespace {

std::string OddText(const Player& player)
{
    const Controls& controls = player.Program().controls;
    for (const LabelRow& row : LabelTable()) // row 8 repeats what was typed
        if (row.id != lblOutput(8) && !SaysNothingOdd(controls.labels[Index(row.id)].caption))
            return std::string(row.name) + ": " + controls.labels[Index(row.id)].caption;
    const raster::Drawing& drawing = player.Program().picDemo.drawing;
    for (const raster::Stroke& stroke : drawing.Strokes())
        if (!SaysNothingOdd(drawing.TextOf(stroke))) return std::string(drawing.TextOf(stroke));
    for (const SimField& field : SimFields()) {
        const std::string text = field.text(player.Program());
        if (text == "nan" || text == "-nan" || text == "inf" || text == "-inf")
            return std::string(field.name) + ": " + text;
    }
    return "";
}

// Twice what any scene draws.
constexpr std::size_t kMostStrokesOfAScene = 5000;

int Checked(const Simulation& sim, std::initializer_list<MenuId> items)
{
    int count = 0;
    for (const MenuId item : items) count += IsChecked(sim, item);
    return count;
}

struct Bounds
{
    ScrollBarId bar;
    int least, most;
};

// What the bars' handlers promise whenever they have returned.
constexpr Bounds kPromises[] = {{sclPeri, 0, 1000},   {sclApo, 0, 1000},    {sclPeriE, 0, 1000},
                                {sclE, -20, 99},      {sclIncl, -180, 180}, {sclRot, -360, 360},
                                {sclARGP, -360, 360}, {sclView, -359, 359}, {sclZoom, 1, 20},
                                {sclLR, 0, 0},        {sclUD, 0, 0},        {sclViewD, 0, 90}};

std::string BrokenBar(const Simulation& sim)
{
    for (const auto& [bar, least, most] : kPromises)
        if (Value(sim, bar) < least || Value(sim, bar) > most)
            return std::string(ScrollBarTable()[Index(bar)].name) + " is at " +
                   std::to_string(Value(sim, bar));
    if (Value(sim, sclApo) < Value(sim, sclPeri))
        return "the apoapsis bar is below the periapsis bar";
    if (Value(sim, sclSMajAxis) < Value(sim, sclSMinAxis))
        return "the major axis bar is below the minor";
    return "";
}

} // namespace

std::string BrokenPromise(const Player& player)
{
    const Simulation& sim = player.Program();
    if (IsShown(sim, btnPlay) == IsShown(sim, btnPause)) return "play and pause";
    int timers = 0;
    for (const TimerId timer : {tmrSat, tmrES2, tmrSunSynch})
        timers += sim.controls.timers[Index(timer)].enabled;
    if (timers > 1) return "two flights at once";
    for (const Timer& timer : sim.controls.timers)
        if (timer.interval < 1 || timer.interval > 65535) return "an interval that no timer has";
    if (Checked(sim, {mnES2, mnSunSynch, mnGeo, mnMoly}) > 1) return "two demos are marked";
    if (Checked(sim, {mnSatelliteTracking, mnTimeStandards}) > 1) return "two tutorials are open";
    if (Checked(sim, {mnMercury, mnVenus, mnEarth, mnMars, mnJupiter}) > 1)
        return "two planets are marked";
    if (!IsChecked(sim, mnViewSatellite) && sim.controls.lblSat.visible)
        return "an unwanted marker";
    if (sim.state.OrbitMode == Scenario::Tutorial || !sim.state.RedrawEnabled)
        return "a handler left half-way";
    if (sim.controls.nesting != 0) return "a handler that has not ended";
    for (const Picture* const picture : {&sim.picSelvane, &sim.picDemo})
        if (picture->drawing.Strokes().size() > kMostStrokesOfAScene)
            return "strokes that pile up on a picture";
    if (!sim.requests.empty()) return "requests that nobody has carried out";
    if (std::string bar = BrokenBar(sim); !bar.empty()) return bar;
    return OddText(player);
}

} // namespace selvane::replay
