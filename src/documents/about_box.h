// frmAbout: title, version, the maker's links, and a button for the system-information tool.
#pragma once

#include "app/control_table.h"

#include <span>
#include <string_view>

namespace selvane {

struct Simulation;

enum class AboutControl {
    picIcon,
    lblTitle,
    lblVersion,
    lblDescription,
    LblWebsite,
    Label1,
    lblDisclaimer,
    cmdOK,
    cmdSysInfo
};

struct AboutRow
{
    AboutControl control;
    std::string_view name;
    std::string_view text; // empty: none, or set when the box is loaded; '&' marks an access key
    Place place;           // pixels of the client area
    double points;         // font size; 0 for the icon
    Weight weight;
    Underline underline; // underlined labels are links
};

inline constexpr int kAboutClientWidth = 382, kAboutClientHeight = 237; // pixels

// The etched rule between the links and the lower block: grey over white. Pixels.
struct RuleLine
{
    double left, right, y;
    Colour colour;
    int width;
};

// In the order of the controls.
std::span<const AboutRow> AboutTable();
std::span<const RuleLine> AboutRules();

// Shows the window, loading it first where it is not loaded.
void mnAbout_Click(Simulation& sim);

namespace frmAbout {
void Form_Load(Simulation& sim); // writes the captions in sim.windows.frmAbout
void cmdOK_Click(Simulation& sim);
void cmdSysInfo_Click(Simulation& sim);
void Label1_Click(Simulation& sim);
void LblWebsite_Click(Simulation& sim);
} // namespace frmAbout

} // namespace selvane
