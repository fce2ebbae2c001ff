// frmUserGuide: the reader of the user guide, a row of topics above a rich-text pane.
#pragma once

#include "app/control_table.h"

#include <span>
#include <string_view>

namespace selvane {

struct Simulation;

enum class Topic {
    lblIntroduction, lblTerminology, lblMainDisplay, lblEnergy, lblOrbitShape, lblOrbitPosition,
    lblOrbitParameters
};

struct TopicRow
{
    Topic topic;
    std::string_view name, caption;
    Place place; // pixels of the client area
    std::string_view document;
};

// Places as laid out, at 15 twips a pixel.
inline constexpr int kTwipsPerPixel = 15;
inline constexpr std::string_view kUserGuideCaption = "UserGuide";
inline constexpr Place kUserGuideClient{826, 64, 417, 665}; // place on the screen, client size
inline constexpr Place kUserGuidePane{8, 56, 400, 600};
inline constexpr int kUserGuideMarginX = 33, kUserGuideMarginY = 104;

std::span<const TopicRow> TopicTable();

// The pane's size for the window's outer size, pixels; never below 0.
struct PaneSize { int width, height; };
PaneSize PaneSizeFor(int outerWidth, int outerHeight);

void mnUserGuide_Click(Simulation& sim);

namespace frmUserGuide {
void Form_Activate(Simulation& sim); // loads the introduction
void Topic_Click(Simulation& sim, Topic topic);
} // namespace frmUserGuide

} // namespace selvane
