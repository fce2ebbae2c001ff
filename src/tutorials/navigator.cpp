#include "tutorials/navigator.h"

#include "app/handlers.h"
#include "app/help_pane.h"
#include "app/number_text.h"
#include "app/simulation.h"
#include "tutorials/celestial_sphere.h"
#include "tutorials/clock.h"
#include "tutorials/polar_axes.h"
#include "tutorials/solar_days.h"
#include "tutorials/spherical_coordinates.h"
#include "tutorials/step_controls.h"

#include <algorithm>
#include <iterator>

namespace selvane {

namespace {

struct RangeSettings
{
    int max, min, value, smallChange, largeChange;
};

struct Step
{
    int number;
    SceneKey key;
    Procedure scene;
    std::string_view document;
    Procedure controls;                 // before the scene: what shows beside it
    bool returnsMainPicture;            // after the scene CurPic is the main picture again
    std::optional<RangeSettings> range; // given to sclRange after the scene
};

void StartClockControls(Simulation& sim)
{
    HideTutorialControls(sim);
    Enable(sim, tmrTime, true);
    ShowRangeControls(sim);
}

// clang-format off
constexpr Step kSteps[] = {
  // step  scene                    document        controls              returns  range settings
  {20, SceneKey::Demo0,  Demo0,  "Help(20).rtf", ShowViewControls,     true,  {}},
  {21, SceneKey::Demo1,  Demo1,  "Help(21).rtf", HideViewControls,     false, {}},
  {22, SceneKey::Demo2,  Demo2,  "Help(22).rtf", ShowViewControls,     false, {}},
  {23, SceneKey::Demo3,  Demo2,  "Help(23).rtf", ShowViewControls,     false, {}},
  {31, SceneKey::Demo31, Demo31, "Help(31).rtf", HideTutorialControls, true,  {{365,   0, 60, 1, 5}}},
  {32, SceneKey::Demo32, Demo32, "Help(32).rtf", StartClockControls,   true,  {{ 24, -24, -4, 1, 1}}},
};
// clang-format on

constexpr int kFirstFrame = 20, kLastFrame = 23;       // Reference Frames
constexpr int kFirstStandard = 31, kLastStandard = 32; // Time Standards

const Step& StepOf(int number)
{
    const auto* found = std::find_if(std::begin(kSteps), std::end(kSteps),
                                     [&](const Step& step) { return step.number == number; });
    SELVANE_ASSERT(found != std::end(kSteps));
    return *found;
}

void DrawScene(Simulation& sim, const Step& step)
{
    sim.state.CurrentDemo = step.key;
    step.scene(sim);
}

// A document that cannot be loaded is the step's all the same.
void LoadStepDocument(Simulation& sim, const Step& step)
{
    LoadDocument(sim, WindowId::Main, step.document);
    sim.state.HelpFile = step.document;
}

// The bar's handler brings the scene up to the value; where the bar stands there already, nothing
// is drawn.
void SetRange(Simulation& sim, const RangeSettings& range)
{
    AssignMax(sim, sclRange, range.max);
    AssignMin(sim, sclRange, range.min);
    Assign(sim, sclRange, range.value);
    SetSteps(sim, sclRange, range.smallChange, range.largeChange);
    SetText(sim, txtRange, PlainNumber(Value(sim, sclRange)));
}

void RunStep(Simulation& sim, const Step& step)
{
    step.controls(sim);
    sim.state.CurPic = PictureId::picDemo;
    DrawScene(sim, step);
    if (step.returnsMainPicture) sim.state.CurPic = PictureId::picSelvane;
    LoadStepDocument(sim, step);
    if (step.range) SetRange(sim, *step.range);
}

// Moves the counter of the open tutorial and runs the step it comes to.
void Walk(Simulation& sim, int direction)
{
    SimState& state = sim.state;
    sim.picDemo.Cls();
    state.SavedOrbitMode = state.OrbitMode;
    state.OrbitMode = Scenario::Tutorial;
    if (IsChecked(sim, mnSatelliteTracking)) {
        Enable(sim, tmrTime, false);
        state.HelpStep1 = std::clamp(state.HelpStep1 + direction, kFirstFrame, kLastFrame);
        RunStep(sim, StepOf(state.HelpStep1));
    }
    if (IsChecked(sim, mnTimeStandards)) {
        state.HelpStep2 = std::clamp(state.HelpStep2 + direction, kFirstStandard, kLastStandard);
        RunStep(sim, StepOf(state.HelpStep2));
    }
    state.OrbitMode = state.SavedOrbitMode;
}

bool HasViewAngle(const Step& step)
{
    return step.number <= kLastFrame;
}

} // namespace

void HideTutorialControls(Simulation& sim)
{
    Enable(sim, tmrTime, false);
    HideViewControls(sim);
    HideRangeControls(sim);
}

void mnSatelliteTracking_Click(Simulation& sim)
{
    HideTutorialControls(sim);
    if (IsChecked(sim, mnSatelliteTracking)) {
        Check(sim, mnSatelliteTracking, false);
    } else {
        ShowViewControls(sim);
        Check(sim, mnSatelliteTracking, true);
        Check(sim, mnTimeStandards, false);
        DrawScene(sim, StepOf(kFirstFrame));
        LoadStepDocument(sim, StepOf(kFirstFrame));
    }
    Show(sim, lblReturnToTutorial, false);
}

void mnTimeStandards_Click(Simulation& sim)
{
    const Step& first = StepOf(kFirstStandard);
    HideTutorialControls(sim);
    if (IsChecked(sim, mnTimeStandards)) {
        Check(sim, mnTimeStandards, false);
    } else {
        Check(sim, mnSatelliteTracking, false);
        Check(sim, mnTimeStandards, true);
        DrawScene(sim, first);
        LoadStepDocument(sim, first);
        SetRange(sim, *first.range);
    }
    sim.state.HelpFile = first.document;
    Show(sim, lblReturnToTutorial, false);
}

void btnNext2_Click(Simulation& sim)
{
    Walk(sim, +1);
}
void btnBack2_Click(Simulation& sim)
{
    Walk(sim, -1);
}

void lblReturnToTutorial_Click(Simulation& sim)
{
    LoadDocument(sim, WindowId::Main, sim.state.HelpFile);
    Show(sim, lblReturnToTutorial, false);
}

void sclViewD_Change(Simulation& sim)
{
    if (Value(sim, sclViewD) >= 90) Assign(sim, sclViewD, 90);
    if (Value(sim, sclViewD) <= 0) Assign(sim, sclViewD, 0);
    SetText(sim, txtViewD, PlainNumber(Value(sim, sclViewD)));
    sim.picDemo.Cls();
    for (const Step& step : kSteps)
        if (step.key == sim.state.CurrentDemo && HasViewAngle(step)) step.scene(sim);
}

void sclRange_Change(Simulation& sim)
{
    SimState& state = sim.state;
    SetText(sim, txtRange, PlainNumber(Value(sim, sclRange)));
    if (state.CurrentDemo == SceneKey::Demo32) {
        state.GmtOffset = Number(sim, txtRange);
    } else if (state.CurrentDemo == SceneKey::Demo31) {
        state.SolarDays = static_cast<std::int16_t>(RoundHalfEven(Number(sim, txtRange)));
        Demo31(sim);
    }
}

} // namespace selvane
