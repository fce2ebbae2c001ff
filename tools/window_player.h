// WindowPlayer: carries the actions of a script out on the real window, with the mouse and the keys
// where a user would.
#pragma once

#include "gestures.h"
#include "qt/shell.h"
#include "replay/dump.h"
#include "replay/scripted_platform.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace selvane {

class WindowPlayer
{
public:
    // The program on the screen; its timers tick only when a script says so.
    WindowPlayer();

    // What it comes to among a script's actions: nothing where it is no matter of the program, or
    // where a user could not do it, which is left out.
    std::optional<replay::Action> Do(const Gesture& gesture);

    // All keys but those about strokes, which the screen does not keep.
    replay::Dump Take() const;

    // Where the screen does not show what the records say, its own or those of another program;
    // empty when all agree.
    std::string Disagreement() { return Disagreement(shell_.Sim()); }
    std::string Disagreement(const Simulation& sim);

private:
    struct Hand;
    struct GestureHand;

    template <typename Object> Object* Find(std::string_view name) const;

    replay::ScriptedPlatform platform_;
    Shell shell_;
    std::map<std::string, QObject*, std::less<>> named_; // the main window's, which stay
};

} // namespace selvane
