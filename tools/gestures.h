// Gestures: what a hand does at the real window. An action of a script is one; the others are lines
// of text beside them:
//
//     wheel BAR NOTCHES        over a bar that has the focus; away from the user is positive
//     drag BAR PIXELS          the thumb, by so much of the screen
//     paste FIELD TEXT         over the field's whole text
//     resize WIDTH HEIGHT      the main window, in pixels
//     leave                    to another program's window and back
#pragma once

#include "replay/action.h"
#include "replay/monkey.h"

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <variant>

namespace selvane {

struct WheelTurn
{
    ScrollBarId bar;
    int notches;
};
struct ThumbDrag
{
    ScrollBarId bar;
    int pixels;
};
struct Pasting
{
    FieldId field;
    std::string text;
};
struct Resizing
{
    int width, height;
};
struct Leaving
{};

using Gesture = std::variant<replay::Action, WheelTurn, ThumbDrag, Pasting, Resizing, Leaving>;

// Nothing when the line is no gesture.
std::optional<Gesture> ParseGesture(std::string_view line);

// A user with a hand who does anything. From one seed always the same gestures.
class GestureMonkey
{
public:
    explicit GestureMonkey(std::uint64_t seed) : monkey_(seed), random_(seed) {}

    // The next gesture, as a line.
    std::string Next();

private:
    replay::Monkey monkey_;
    std::mt19937_64 random_;
};

} // namespace selvane
