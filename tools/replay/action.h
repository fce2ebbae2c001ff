// The actions of a script: what a user, a timer or the machine can do, one a line of text.
#pragma once

#include "app/control_ids.h"
#include "app/platform.h"
#include "app/windows.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace selvane::replay {

struct ScrollTo
{
    ScrollBarId bar;
    int value;
};
struct ArrowClick
{
    ScrollBarId bar;
    int direction;
}; // +1 or -1
struct PageClick
{
    ScrollBarId bar;
    int direction;
};
struct TypeText
{
    FieldId field;
    std::string text;
};
struct ButtonClick
{
    ButtonId button;
};
struct MenuChoice
{
    MenuId item;
};
struct LabelClick
{
    LabelId label;
};
struct TimerTick
{
    TimerId timer;
};
struct Activation
{
    WindowId window;
};
struct Closing
{
    WindowId window;
};
struct TopicClick
{
    Topic topic;
};
struct AboutClick
{
    AboutControl control;
};
struct ClockSetting
{
    LocalTime time;
};
struct DocumentChange
{
    std::string name;
    bool present;
};

using Action = std::variant<ScrollTo, ArrowClick, PageClick, TypeText, ButtonClick, MenuChoice,
                            LabelClick, TimerTick, Activation, Closing, TopicClick, AboutClick,
                            ClockSetting, DocumentChange>;

// Nothing when the line is no action. Words may stand apart by several blanks; what is typed is all
// that stands behind the one blank after the field. A value beyond the range of an int saturates.
std::optional<Action> ParseAction(std::string_view line);

// A blank line, or one that begins with '#'.
bool IsRemark(std::string_view line);

// "2012-07-28T14:48:46", a date that the calendar has; year 1 to 9999.
std::optional<LocalTime> ParseTime(std::string_view text);

// A whole number, saturated at the range of an int; nothing when anything else stands in the text.
std::optional<int> ParseWholeNumber(std::string_view text);

// Cuts the first word off the text. Blanks round it are dropped, but for those behind the one that
// ends the word.
std::string_view TakeWord(std::string_view& text);

} // namespace selvane::replay
