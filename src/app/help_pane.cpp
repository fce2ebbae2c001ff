#include "app/help_pane.h"

#include "app/simulation.h"

namespace selvane {

void Load(Simulation& sim, HelpPane& pane, std::string_view document)
{
    const std::optional<std::string> bytes = sim.platform.ReadDocument(document);
    if (!bytes) return;
    std::shared_ptr<const RichText> text = sim.wiring.readRichText(*bytes);
    if (!text) return;
    pane.text = std::move(text);
    pane.document = document;
    ++pane.loads;
}

void Empty(HelpPane& pane)
{
    pane.text.reset();
    pane.document.clear();
    ++pane.loads;
}

} // namespace selvane
