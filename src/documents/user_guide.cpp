#include "documents/user_guide.h"

#include "app/help_pane.h"
#include "app/simulation.h"

#include <algorithm>
#include <array>

namespace selvane {

namespace {

using enum Topic;

constexpr std::array<TopicRow, 7> kTopics{{
    {lblIntroduction, "lblIntroduction", "Introduction", {8, 8, 69, 15}, "Introduction.rtf"},
    {lblTerminology, "lblTerminology", "Terminolgy", {98, 8, 60, 14}, "Terminology.rtf"},
    {lblMainDisplay, "lblMainDisplay", "Main Display", {188, 8, 72, 14}, "MainDisplay.rtf"},
    {lblEnergy, "lblEnergy", "Orbital Energies", {278, 8, 88, 14}, "Energy.rtf"},
    {lblOrbitShape, "lblOrbitShape", "Orbit Shape", {8, 24, 64, 14}, "OrbitShape.rtf"},
    {lblOrbitPosition, "lblOrbitPosition", "Orbit Position", {98, 24, 75, 14}, "OrbitPosition.rtf"},
    {lblOrbitParameters,
     "lblOrbitParameters",
     "Orbit Parameters",
     {188, 24, 92, 14},
     "OrbitParameters.rtf"},
}};

// What the window's frame and the pane's surroundings take, in pixels.
constexpr int kBesidePane = 33, kAboveAndBelowPane = 104;

} // namespace

std::span<const TopicRow> TopicTable()
{
    return kTopics;
}

PaneSize PaneSizeFor(int outerWidth, int outerHeight)
{
    return {std::max(outerWidth - kBesidePane, 0), std::max(outerHeight - kAboveAndBelowPane, 0)};
}

void mnUserGuide_Click(Simulation& sim)
{
    ShowWindow(sim, WindowId::UserGuide);
}

namespace frmUserGuide {

void Form_Activate(Simulation& sim)
{
    Topic_Click(sim, lblIntroduction);
}

void Topic_Click(Simulation& sim, Topic topic)
{
    LoadDocument(sim, WindowId::UserGuide, kTopics[Index(topic)].document);
}

} // namespace frmUserGuide

} // namespace selvane
