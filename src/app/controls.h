// The controls' records: the properties that the program's logic reads or writes, and nothing that
// only the screen knows. The record is the truth; the screen is made to match it.
#pragma once

#include "app/control_ids.h"
#include "raster/colour.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace selvane {

namespace rich_text {
struct Document;
}
struct Simulation;

struct ScrollBar
{
    int min = 0, max = 0, smallChange = 1, largeChange = 1, value = 0;
    bool visible = true;
};

struct NumberField
{
    std::string text;
    double value = 0;                  // the leading numeric prefix of the text, 0 without one
    std::optional<double> strictValue; // the text as a number, where all of it is one
    bool visible = true;
    std::string fault; // why the field's pair describes no orbit; empty while it does
};

struct Button
{
    bool visible = true;
};

struct Label
{
    std::string caption, toolTip;
    bool visible = true;
};

struct Timer
{
    bool enabled = false;
    int interval = 0; // ms, 1 to 65535
};

struct MenuItem
{
    bool checked = false;
};

// lblSat: the satellite on the picture. Place in the picture's user units, of the top left corner.
struct Marker
{
    bool visible = true;
    std::optional<Colour> back; // nothing before the first placing
    std::optional<double> left, top;
};

// A rich-text pane.
struct HelpPane
{
    std::string document;                            // name last loaded, empty when emptied
    std::shared_ptr<const rich_text::Document> text; // null when emptied
    unsigned loads = 0; // counts loads and emptyings: a new one starts at the top
};

struct Controls
{
    std::array<ScrollBar, kScrollBarCount> scrollBars;
    std::array<NumberField, kFieldCount> fields;
    std::array<Button, kButtonCount> buttons;
    std::array<Label, kLabelCount> labels;
    std::array<Timer, kTimerCount> timers;
    std::array<MenuItem, kMenuCount> menu;
    Marker lblSat;
    HelpPane txtHelp;
    int nesting = 0; // change handlers now running inside one another
};

// The records as the control table gives them.
Controls InitialControls();

// Gives a bar a value, from the user or from code: clamps it to the range and, where it is new,
// runs the bar's change handler before it returns.
void Assign(Simulation& sim, ScrollBarId bar, int value);

// Narrow or widen a bar's range. A value that falls outside is clamped, and its handler runs.
void AssignMin(Simulation& sim, ScrollBarId bar, int min);
void AssignMax(Simulation& sim, ScrollBarId bar, int max);
void SetSteps(Simulation& sim, ScrollBarId bar, int smallChange, int largeChange);
int Value(const Simulation& sim, ScrollBarId bar);

// The value of a field is worked out once, when its text changes.
void SetText(Simulation& sim, FieldId field, std::string text);
const std::string& Text(const Simulation& sim, FieldId field);
double Number(const Simulation& sim, FieldId field);
std::optional<double> StrictNumber(const Simulation& sim, FieldId field);
void SetFault(Simulation& sim, FieldId field, std::string_view why);

void SetCaption(Simulation& sim, LabelId label, std::string caption);
void SetToolTip(Simulation& sim, LabelId label, std::string_view toolTip);

// The caption of a row of the read-outs: its name, the number, the unit.
void SetRow(Simulation& sim, int row, std::string_view name, std::string_view number,
            std::string_view unit);

void Show(Simulation& sim, ScrollBarId bar, bool visible);
void Show(Simulation& sim, FieldId field, bool visible);
void Show(Simulation& sim, LabelId label, bool visible);
void Show(Simulation& sim, ButtonId button, bool visible);
bool IsShown(const Simulation& sim, ButtonId button);

void Enable(Simulation& sim, TimerId timer, bool enabled);
// Whole milliseconds, bounded to 1 to 65535; ties go to even.
void SetInterval(Simulation& sim, TimerId timer, double milliseconds);

void Check(Simulation& sim, MenuId item, bool checked);
bool IsChecked(const Simulation& sim, MenuId item);

// The marker shows only while the Satellite item of the View menu is checked.
void ShowMarker(Simulation& sim, bool visible);

} // namespace selvane
