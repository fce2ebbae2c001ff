// What a screen reader says, the same in every shell: the name of each control, what it is for,
// what the pictures show, and that a new text stands in a pane. The words are worked out from the
// records when they are asked for, so that they are true at that moment.
#pragma once

#include "app/controls.h"
#include "app/windows.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"

#include <string>

namespace selvane {

struct SpokenText
{
    std::string name, description; // UTF-8; a description may be empty

    bool operator==(const SpokenText&) const = default;
};

// The main window's controls. A field whose pair describes no orbit says why; bars and fields of
// the orbit's shape say whether their pair is the one that rules.
SpokenText Spoken(const Simulation& sim, ScrollBarId bar);
SpokenText Spoken(const Simulation& sim, FieldId field);
SpokenText Spoken(const Simulation& sim, ButtonId button);
SpokenText Spoken(const Simulation& sim, LabelId label);

// Which planet, in which scenario, and where the satellite stands, with the read-outs' numbers.
SpokenText SpokenMainPicture(const Simulation& sim);

// Which step of which tutorial, or that none is open.
SpokenText SpokenTutorialPicture(const Simulation& sim);

SpokenText SpokenMarker();

// The user guide's topics and the about box.
SpokenText Spoken(Topic topic);
SpokenText Spoken(const Simulation& sim, AboutControl control);

// The rich-text pane of the main window or of the user guide, with the title of its document.
SpokenText SpokenPane(const Simulation& sim, WindowId window);

// The first paragraph that has words; empty where the pane is.
std::string TitleOf(const HelpPane& pane);

} // namespace selvane
