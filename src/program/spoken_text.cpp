#include "program/spoken_text.h"

#include "app/number_text.h"
#include "app/simulation.h"
#include "rich_text/document.h"

#include <algorithm>

namespace selvane {

namespace {

std::string Whole(double number)
{
    return FixedNumber(number, 0);
}

std::string Joined(std::string_view first, std::string_view second)
{
    std::string both(first);
    if (!first.empty() && !second.empty()) both += ' ';
    return both += second;
}

// Nothing for a control that belongs to no pair.
template <typename Id> std::string_view RulingWords(const Simulation& sim, Id control)
{
    for (const ShapePairRow& row : ShapePairTable())
        if (row.Has(control))
            return row.pair == sim.state.ShapeInput ? "This pair gives the orbit its shape."
                                                    : "Another pair gives the orbit its shape.";
    return "";
}

// A bar and its field are called alike.
std::string NameOf(const Simulation& sim, ScrollBarId bar)
{
    if (bar == sclLR) return "Pan left and right";
    if (bar == sclUD) return "Pan up and down";
    return sim.controls.labels[Index(ScrollBarTable()[Index(bar)].caption)].caption;
}

std::string_view PurposeOf(const Simulation& sim, ScrollBarId bar)
{
    if (bar == sclLR || bar == sclUD) return "Moves the picture.";
    return sim.controls.labels[Index(ScrollBarTable()[Index(bar)].caption)].toolTip;
}

std::string NameOf(const ButtonRow& row)
{
    switch (row.glyph) {
    case Glyph::StepBack:
        return row.id == btnBack2 ? "Back" : "Step back";
    case Glyph::Pause:
        return "Pause";
    case Glyph::Play:
        return "Play";
    case Glyph::StepForward:
        return row.id == btnNext2 ? "Next" : "Step forward";
    case Glyph::None:
        break;
    }
    return row.caption.empty() ? "Blank" : std::string(row.caption);
}

std::string_view PurposeOf(ButtonId button)
{
    switch (button) {
    case btnApsisCalculate:
        return "Makes the orbit from its periapsis and apoapsis.";
    case btnECalculate:
        return "Makes the orbit from its periapsis and eccentricity.";
    case btnAxisCalculate:
        return "Makes the orbit from its two axes.";
    case btnReverse:
        return "Moves the scene one step back.";
    case btnPause:
        return "Stops the motion.";
    case btnPlay:
        return "Lets the motion go on.";
    case btnAdvance:
        return "Moves the scene one step forward.";
    case btnBack2:
        return "Shows the tutorial's step before this one.";
    case btnNext2:
        return "Shows the tutorial's next step.";
    case Command1:
        break;
    }
    return "Fills the corner between two bars; does nothing.";
}

// A reset leaves the marker where it was until the next step; the read-outs say that it counts for
// nothing.
bool IsPlaced(const Simulation& sim)
{
    return sim.controls.lblSat.left &&
           !sim.controls.labels[Index(lblOutput(16))].caption.ends_with("N/A");
}

std::string SatelliteWords(const Simulation& sim)
{
    const Marker& marker = sim.controls.lblSat;
    const SimState& state = sim.state;
    if (!IsChecked(sim, mnViewSatellite)) return "The satellite is not shown.";
    if (!IsPlaced(sim)) return "The satellite has not been placed yet.";
    std::string light = ", sunlit.";
    if (!marker.visible)
        light = ", hidden behind the planet.";
    else if (marker.back != kWhite)
        light = ", in the planet's shadow.";
    return "The satellite is at latitude " + Whole(state.SatLat) + ", longitude " +
           Whole(state.SatLon) + " degrees, true anomaly " + Whole(state.TrueAnomaly) + " degrees" +
           light;
}

std::string SceneWords(const SimState& state)
{
    if (IsSunCentred(state.OrbitMode))
        return state.PlanetName + " on its way round the Sun, at " + Whole(state.HelioDeg) +
               " degrees, with the orbit of its satellite.";
    return state.PlanetName + " with the orbit of its satellite; the Sun is at the left.";
}

std::string_view StepWords(SceneKey key)
{
    switch (key) {
    case SceneKey::None:
        break;
    case SceneKey::Demo0:
        return "Reference Frames, step 1 of 4: the celestial sphere with its equator, the ecliptic "
               "and the celestial poles.";
    case SceneKey::Demo1:
        return "Reference Frames, step 2 of 4: the planet from above its north pole, with the axes "
               "X, Y and Z.";
    case SceneKey::Demo2:
        return "Reference Frames, step 3 of 4: right ascension, declination and radius of a point.";
    case SceneKey::Demo3:
        return "Reference Frames, step 4 of 4: longitude, latitude and radius of a point.";
    case SceneKey::Demo31:
        return "Time Standards, step 1 of 2: the Earth at two places on its way round the Sun, for "
               "solar and sidereal days.";
    case SceneKey::Demo32:
        return "Time Standards, step 2 of 2: a clock with the Earth on the dial of the year.";
    }
    return "";
}

} // namespace

SpokenText Spoken(const Simulation& sim, ScrollBarId bar)
{
    return {NameOf(sim, bar), Joined(PurposeOf(sim, bar), RulingWords(sim, bar))};
}

SpokenText Spoken(const Simulation& sim, FieldId field)
{
    const ScrollBarId bar = FieldTable()[Index(field)].bar;
    const std::string& fault = sim.controls.fields[Index(field)].fault;
    return {NameOf(sim, bar),
            Joined(fault.empty() ? PurposeOf(sim, bar) : fault, RulingWords(sim, field))};
}

SpokenText Spoken(const Simulation& sim, ButtonId button)
{
    return {NameOf(ButtonTable()[Index(button)]),
            Joined(PurposeOf(button), RulingWords(sim, button))};
}

SpokenText Spoken(const Simulation& sim, LabelId label)
{
    const Label& record = sim.controls.labels[Index(label)];
    if (label == lblReturnToTutorial)
        return {record.caption, "Shows the tutorial's explanation again."};
    return {record.caption, record.toolTip};
}

SpokenText SpokenMainPicture(const Simulation& sim)
{
    std::string words = SceneWords(sim.state);
    if (SatelliteFlies(sim.state.OrbitMode)) words += " " + SatelliteWords(sim);
    return {"Orbit", words};
}

SpokenText SpokenTutorialPicture(const Simulation& sim)
{
    const bool open = IsChecked(sim, mnSatelliteTracking) || IsChecked(sim, mnTimeStandards);
    return {"Tutorial picture",
            std::string(open ? StepWords(sim.state.CurrentDemo) : "No tutorial is open.")};
}

SpokenText SpokenMarker()
{
    return {"Satellite", ""};
}

SpokenText Spoken(Topic topic)
{
    return {std::string(TopicTable()[static_cast<std::size_t>(topic)].caption),
            "Shows this topic."};
}

SpokenText Spoken(const Simulation& sim, AboutControl control)
{
    const AboutWindow& box = sim.windows.frmAbout;
    std::string text(AboutTable()[static_cast<std::size_t>(control)].text);
    switch (control) {
    case AboutControl::picIcon:
        return {"The program's icon: a planet and its satellite", ""};
    case AboutControl::lblTitle:
        return {box.lblTitle, ""};
    case AboutControl::lblVersion:
        return {box.lblVersion, ""};
    case AboutControl::lblDescription:
        break;
    case AboutControl::LblWebsite:
        return {text, "Opens the website."};
    case AboutControl::Label1:
        return {text, "Writes a mail."};
    case AboutControl::lblDisclaimer:
        text = box.lblDisclaimer;
        std::erase(text, '\r');
        break;
    case AboutControl::cmdOK:
        return {text, "Closes this window."};
    case AboutControl::cmdSysInfo:
        std::erase(text, '&');
        return {text, "Starts the desktop's own tool."};
    }
    return {text, ""};
}

SpokenText SpokenPane(const Simulation& sim, WindowId window)
{
    const bool guide = window == WindowId::UserGuide;
    const std::string title =
        TitleOf(guide ? sim.windows.frmUserGuide.txtHelp : sim.controls.txtHelp);
    std::string name = guide ? "User guide" : "Explanation";
    if (!title.empty()) name += ": " + title;
    return {name, guide ? "The text of the topic." : "Explains what the pictures show."};
}

std::string TitleOf(const HelpPane& pane)
{
    if (!pane.text) return "";
    for (const rich_text::Paragraph* const paragraph : rich_text::Paragraphs(pane.text->blocks)) {
        std::string words = rich_text::PlainText(*paragraph);
        std::ranges::replace_if(
            words, [](char sign) { return sign == '\t' || sign == '\n'; }, ' ');
        const std::size_t first = words.find_first_not_of(' ');
        if (first != std::string::npos)
            return words.substr(first, words.find_last_not_of(' ') + 1 - first);
    }
    return "";
}

} // namespace selvane
