// The rich-text panes: the main window's and the user guide's.
#pragma once

#include "app/controls.h"
#include "app/platform.h"

#include <string>
#include <string_view>

namespace selvane {

struct Simulation;

// The pane of the main window or of the user guide.
HelpPane& PaneOf(Simulation& sim, WindowId window);

// Asks for the document of that name, which replaces the pane's content when the event is over. One
// that is missing or cannot be read leaves the pane as it was, without a word.
void LoadDocument(Simulation& sim, WindowId window, std::string_view name);

// The rich text in a document's bytes; null where they hold none.
std::shared_ptr<const rich_text::Document> ReadPaneText(const std::string& bytes);

// The bytes of a document that was asked for. Does nothing where they are no rich text, or where
// the user guide is meant and has been closed meanwhile.
void ShowDocument(Simulation& sim, WindowId window, const std::string& name,
                  const std::string& bytes);

// Empties the pane, and forgets what has been asked for it.
void EmptyPane(Simulation& sim, WindowId window);

// Where a link of a document leads: to another document of the working folder, by its bare name, or
// to a web address (http, https). One that leads nowhere is no link: it is shown as plain text.
struct LinkTarget
{
    enum class Kind { None, Document, Web } kind = Kind::None;
    std::string address;
};
LinkTarget LinkTargetOf(std::string_view link);

} // namespace selvane
