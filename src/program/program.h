// The entry points for events. The shells, the scripts and the tests put every action of the user
// and every tick through here; a handler runs to its end before the next event comes in. A shell
// sets the time in the simulation before an event, and calls CarryOut after it.
//
// An action that a user could not take (a hidden control, a timer that is off, a window that is
// not the active one) changes nothing, and the reason comes back.
#pragma once

#include "app/simulation.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"

#include <optional>
#include <string>
#include <string_view>

namespace selvane {

using Refusal = std::optional<std::string>;

// Loads the main window; nothing is drawn yet.
void LoadMainWindow(Simulation& sim);

// The first showing of the main window: it becomes the active one and draws its pictures.
void ShowMainWindow(Simulation& sim);

// Moves of a bar. A thumb released outside the range is clamped.
Refusal Scroll(Simulation& sim, ScrollBarId bar, int value);
Refusal StepBar(Simulation& sim, ScrollBarId bar, int direction); // arrows: +1 or -1 small change
Refusal PageBar(Simulation& sim, ScrollBarId bar, int direction); // beside the thumb: large change

// The field's whole text becomes this, or its first line where it has several.
Refusal Type(Simulation& sim, FieldId field, std::string text);

Refusal Click(Simulation& sim, ButtonId button);
Refusal Choose(Simulation& sim, MenuId item);
Refusal ClickLabel(Simulation& sim, LabelId label);
Refusal Tick(Simulation& sim, TimerId timer);

// One of the program's own windows becomes the active one, or is closed by the user.
Refusal ActivateByUser(Simulation& sim, WindowId window);
Refusal CloseByUser(Simulation& sim, WindowId window);

Refusal ClickTopic(Simulation& sim, Topic topic);
Refusal ClickAbout(Simulation& sim, AboutControl control);

// A link in the pane of a window, as its document has it. Another document is loaded there, a web
// address opened; a link that leads nowhere (see LinkTargetOf) does nothing.
void FollowLink(Simulation& sim, WindowId window, std::string_view link);

// Carries out what the handlers have asked for, in that order, and empties the list.
void CarryOut(Simulation& sim, Platform& platform);

} // namespace selvane
