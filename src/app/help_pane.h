// Loading documents into a rich-text pane.
#pragma once

#include "app/controls.h"

namespace selvane {

// Loads the document of that name from the working folder and replaces the pane's content. One
// that is missing or cannot be read leaves the pane as it was, without a word.
void Load(Simulation& sim, HelpPane& pane, std::string_view document);

void Empty(HelpPane& pane);

} // namespace selvane
