// ControlMirror: makes the main window's widgets match the records. It compares first and touches
// only what differs: a thumb that is held, a text that is being typed and a selection stay as they
// are.
#pragma once

#include "qt/control_widgets.h"

namespace selvane {

class ControlMirror
{
public:
    explicit ControlMirror(const ControlWidgets& widgets);

    void Pass(const Simulation& sim);

private:
    void MatchBars(const Controls& controls);
    void MatchFields(const Controls& controls);
    void MatchLabels(const Controls& controls);
    void MatchButtons(const Controls& controls);
    void MatchMenu(const Controls& controls);
    void MatchMarker(const Simulation& sim);
    void MatchRulingPair(ShapePair pair);
    void MatchSpoken(const Simulation& sim);

    const ControlWidgets widgets_;
    // What the widgets show: texts are compared as the records hold them.
    std::array<Label, kLabelCount> labels_;
    std::array<std::string, kFieldCount> texts_, faults_;
    std::optional<Colour> markerColour_;
};

} // namespace selvane
