#include "app/controls.h"

#include "app/assertion.h"
#include "app/handlers.h"
#include "app/number_text.h"
#include "app/simulation.h"

#include <algorithm>
#include <utility>

namespace selvane {

namespace {

// Handlers assign bars inside one another: a pair pushes its partner, a clamp runs its own handler
// again. Three levels occur; far more than that is a mistake of ours.
constexpr int kDeepestNesting = 16;

ScrollBar& Bar(Simulation& sim, ScrollBarId bar)
{
    return sim.controls.scrollBars[Index(bar)];
}
NumberField& Field(Simulation& sim, FieldId field)
{
    return sim.controls.fields[Index(field)];
}

void ReadValue(NumberField& field)
{
    field.value = PrefixNumber(field.text);
    field.strictValue = StrictNumber(field.text);
}

} // namespace

Controls InitialControls()
{
    Controls controls;
    for (const ScrollBarRow& row : ScrollBarTable())
        controls.scrollBars[Index(row.id)] = {row.min,         row.max,   row.smallChange,
                                              row.largeChange, row.value, true};
    for (const FieldRow& row : FieldTable()) {
        NumberField& field = controls.fields[Index(row.id)];
        field.text = row.text;
        ReadValue(field);
    }
    for (const ButtonRow& row : ButtonTable())
        controls.buttons[Index(row.id)].visible = row.visible;
    for (const LabelRow& row : LabelTable())
        controls.labels[Index(row.id)] = {std::string(row.caption), std::string(row.toolTip), true};
    for (const TimerRow& row : TimerTable())
        controls.timers[Index(row.id)] = {false, row.intervalMs};
    for (const MenuRow& row : MenuTable()) controls.menu[Index(row.id)].checked = row.checked;
    return controls;
}

void Assign(Simulation& sim, ScrollBarId bar, int value)
{
    ScrollBar& record = Bar(sim, bar);
    value = std::clamp(value, record.min, record.max);
    if (value == record.value) return;
    record.value = value;
    SELVANE_ASSERT(sim.controls.nesting < kDeepestNesting);
    ++sim.controls.nesting;
    kHandlers.change[Index(bar)](sim);
    --sim.controls.nesting;
}

void AssignMin(Simulation& sim, ScrollBarId bar, int min)
{
    Bar(sim, bar).min = std::min(min, Bar(sim, bar).max);
    Assign(sim, bar, Bar(sim, bar).value);
}

void AssignMax(Simulation& sim, ScrollBarId bar, int max)
{
    Bar(sim, bar).max = std::max(max, Bar(sim, bar).min);
    Assign(sim, bar, Bar(sim, bar).value);
}

void SetSteps(Simulation& sim, ScrollBarId bar, int smallChange, int largeChange)
{
    Bar(sim, bar).smallChange = smallChange;
    Bar(sim, bar).largeChange = largeChange;
}

int Value(const Simulation& sim, ScrollBarId bar)
{
    return sim.controls.scrollBars[Index(bar)].value;
}

void SetText(Simulation& sim, FieldId field, std::string text)
{
    NumberField& record = Field(sim, field);
    if (record.text == text) return;
    record.text = std::move(text);
    ReadValue(record);
}

const std::string& Text(const Simulation& sim, FieldId field)
{
    return sim.controls.fields[Index(field)].text;
}

double Number(const Simulation& sim, FieldId field)
{
    return sim.controls.fields[Index(field)].value;
}

std::optional<double> StrictNumber(const Simulation& sim, FieldId field)
{
    return sim.controls.fields[Index(field)].strictValue;
}

void SetFault(Simulation& sim, FieldId field, std::string_view why)
{
    Field(sim, field).fault = why;
}

void SetCaption(Simulation& sim, LabelId label, std::string caption)
{
    sim.controls.labels[Index(label)].caption = std::move(caption);
}

void SetRow(Simulation& sim, int row, std::string_view name, std::string_view number,
            std::string_view unit)
{
    std::string caption(name);
    caption += number;
    caption += unit;
    SetCaption(sim, lblOutput(row), std::move(caption));
}

void SetToolTip(Simulation& sim, LabelId label, std::string_view toolTip)
{
    sim.controls.labels[Index(label)].toolTip = toolTip;
}

void Show(Simulation& sim, ScrollBarId bar, bool visible)
{
    Bar(sim, bar).visible = visible;
}
void Show(Simulation& sim, FieldId field, bool visible)
{
    Field(sim, field).visible = visible;
}

void Show(Simulation& sim, LabelId label, bool visible)
{
    sim.controls.labels[Index(label)].visible = visible;
}

void Show(Simulation& sim, ButtonId button, bool visible)
{
    sim.controls.buttons[Index(button)].visible = visible;
}

bool IsShown(const Simulation& sim, ButtonId button)
{
    return sim.controls.buttons[Index(button)].visible;
}

void Enable(Simulation& sim, TimerId timer, bool enabled)
{
    sim.controls.timers[Index(timer)].enabled = enabled;
}

void SetInterval(Simulation& sim, TimerId timer, double milliseconds)
{
    const double bounded = std::clamp(RoundHalfEven(milliseconds), 1.0, 65535.0);
    sim.controls.timers[Index(timer)].interval = static_cast<int>(bounded);
}

void Check(Simulation& sim, MenuId item, bool checked)
{
    sim.controls.menu[Index(item)].checked = checked;
}

bool IsChecked(const Simulation& sim, MenuId item)
{
    return sim.controls.menu[Index(item)].checked;
}

void ShowMarker(Simulation& sim, bool visible)
{
    sim.controls.lblSat.visible = visible && IsChecked(sim, mnViewSatellite);
}

} // namespace selvane
