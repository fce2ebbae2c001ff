// The control table: name, place, range, face and start state of every control of the main
// window. The records, the window and the scripts are made from it; nobody writes a place twice.
// Places are pixels from the top left corner of the window's client area; those of lblPlanet and
// lblSat count from the corner of picSelvane.
#pragma once

#include "app/control_ids.h"
#include "app/sim_state.h"
#include "raster/colour.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace selvane {

struct Place
{
    int left, top, width, height;
};

enum class Alignment { Left, Centre, Right };
enum class Direction { Horizontal, Vertical };
enum class Weight { Regular, Bold };
enum class Underline { No, Yes };
enum class Backdrop { Window, None };

struct ScrollBarRow
{
    ScrollBarId id;
    std::string_view name;
    Direction direction;
    int min, max, smallChange, largeChange, value;
    Place place;
    LabelId caption; // the label that says what the bar and its field are for
};

struct FieldRow
{
    FieldId id;
    std::string_view name, text;
    Place place;
    ScrollBarId bar; // the bar beside it
};

enum class Glyph { None, StepBack, Pause, Play, StepForward };

struct ButtonRow
{
    ButtonId id;
    std::string_view name, caption;
    Glyph glyph;
    Place place;
    bool visible;
};

struct LabelRow
{
    LabelId id;
    std::string_view name, caption;
    Place place; // read-outs have no size: width and height 0, they fit their text
    Alignment alignment;
    Weight weight;
    Underline underline;
    double points;
    std::optional<Colour> colour; // nothing: the window's text colour
    Backdrop backdrop;
    std::string_view toolTip;
};

struct TimerRow
{
    TimerId id;
    std::string_view name;
    int intervalMs;
};

struct MenuRow
{
    MenuId id;
    std::string_view name, caption; // a separator has no caption
    std::optional<MenuId> under;    // nothing: stands in the menu bar
    bool checkable, checked;
};

struct PictureRow
{
    std::string_view name;
    Place place;
    Colour background, foreColor, fillColor; // at the start
};

// A rectangle that frames a panel.
struct FrameRow
{
    std::string_view name;
    Place place;
    std::optional<Colour> fill;
};

// One way to give the orbit its shape: two bars with their fields and the button that makes the
// pair rule. While it rules, a frame of kRulingColour, one pixel wide, stands inside the outer edge
// of the place.
struct ShapePairRow
{
    ShapePair pair;
    std::array<ScrollBarId, 2> bars;
    std::array<FieldId, 2> fields;
    ButtonId button;
    Place frame;

    bool Has(ScrollBarId bar) const { return std::ranges::count(bars, bar) > 0; }
    bool Has(FieldId field) const { return std::ranges::count(fields, field) > 0; }
    bool Has(ButtonId other) const { return button == other; }
};

inline constexpr std::string_view kApplicationTitle = "Selvane";
inline constexpr Colour kWindowColour{224, 224, 224};
inline constexpr Place kWindowOuter{0, 0, 1254, 887}; // outer size and place on the screen
inline constexpr Colour kRulingColour{96, 136, 192};
inline constexpr int kClientWidth = 1243, kClientHeight = 827;
inline constexpr Place kHelpPane{824, 352, 400, 256}; // txtHelp
inline constexpr int kMarkerSize = 5;                 // lblSat is a square

extern const PictureRow kPicSelvane, kPicDemo;

// Each table stands in the order of its identifiers.
std::span<const ScrollBarRow> ScrollBarTable();
std::span<const FieldRow> FieldTable();
std::span<const ButtonRow> ButtonTable();
std::span<const LabelRow> LabelTable();
std::span<const TimerRow> TimerTable();
std::span<const MenuRow> MenuTable();
std::span<const FrameRow> FrameTable();

// The pixels that the text of a label in a white panel may take before it would run over its
// neighbour or out of the panel, where it ends instead; nothing for all other labels.
std::optional<int> RoomOf(LabelId label);

std::span<const ShapePairRow> ShapePairTable(); // as they lie, from top to bottom

// The controls that take the focus, by name, in the order in which Tab walks through them.
std::span<const std::string_view> ReadingOrder();

} // namespace selvane
