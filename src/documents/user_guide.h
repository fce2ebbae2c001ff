// frmUserGuide: the reader of the user guide, a row of topics above a rich-text pane.
#pragma once

#include "app/control_table.h"

#include <span>
#include <string_view>

namespace selvane {

struct Simulation;

enum class Topic {
    lblIntroduction,
    lblTerminology,
    lblMainDisplay,
    lblEnergy,
    lblOrbitShape,
    lblOrbitPosition,
    lblOrbitParameters
};

struct TopicRow
{
    Topic topic;
    std::string_view name, caption;
    Place place; // pixels of the client area
    std::string_view document;
};

// Places as laid out, in pixels.
inline constexpr std::string_view kUserGuideCaption = "UserGuide";
inline constexpr Place kUserGuideClient{826, 64, 417, 665}; // place on the screen, client size
inline constexpr Place kUserGuidePane{8, 56, 400, 600};

// In the order of the topics, which is the reading order.
std::span<const TopicRow> TopicTable();

// The pane's size for the window's outer size, frame included, in pixels. Never below 0.
struct PaneSize
{
    int width, height;
    bool operator==(const PaneSize&) const = default;
};
PaneSize PaneSizeFor(int outerWidth, int outerHeight);

// Shows the window, loading it first where it is not loaded.
void mnUserGuide_Click(Simulation& sim);

// Documents go into the pane of sim.windows.frmUserGuide; one that cannot be read leaves it.
namespace frmUserGuide {
void Form_Activate(Simulation& sim); // loads the introduction, whichever topic was open
void Topic_Click(Simulation& sim, Topic topic);
} // namespace frmUserGuide

} // namespace selvane
