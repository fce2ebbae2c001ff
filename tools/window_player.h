// WindowPlayer: carries the actions of a script out on the real window, with the mouse and the keys
// where a user would.
#pragma once

#include "qt/shell.h"
#include "replay/action.h"
#include "replay/dump.h"
#include "replay/scripted_platform.h"

#include <string>

namespace selvane {

class WindowPlayer
{
public:
    // The program on the screen; its timers tick only when a script says so.
    WindowPlayer();

    // An action that a user could not take is left out.
    void Do(const replay::Action& action);

    // All keys but those about strokes, which the screen does not keep.
    replay::Dump Take() const;

    // Where the screen does not show what the records say; empty when all agree.
    std::string Disagreement();

private:
    struct Hand;

    replay::ScriptedPlatform platform_;
    Shell shell_;
};

} // namespace selvane
