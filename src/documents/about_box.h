// frmAbout: title, version, the maker's links, and the way to the system-information tool.
#pragma once

#include "app/control_table.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace selvane {

struct Simulation;

enum class AboutControl {
    picIcon, lblTitle, lblVersion, lblDescription, LblWebsite, Label1, lblDisclaimer, cmdOK,
    cmdSysInfo
};

struct AboutRow
{
    AboutControl control;
    std::string_view name;
    std::string_view text; // empty: set when the box is loaded
    Place place;           // pixels of the client area, from twips at 15 a pixel
    double points;         // font size; 0 for the icon
    Weight weight;
    Underline underline;
};

inline constexpr int kAboutClientWidth = 382, kAboutClientHeight = 237;

// The etched rule between the links and the lower block, in pixels: grey over white.
struct RuleLine { double x1, x2, y; Colour colour; int width; };

std::span<const AboutRow> AboutTable();
std::span<const RuleLine> AboutRules();

void mnAbout_Click(Simulation& sim);

namespace frmAbout {
void Form_Load(Simulation& sim);
void cmdOK_Click(Simulation& sim);
void cmdSysInfo_Click(Simulation& sim);
void Label1_Click(Simulation& sim);
void LblWebsite_Click(Simulation& sim);
} // namespace frmAbout

// Finds the system-information tool through the registry and starts it, or says that it is not
// available.
void StartSysInfo(Simulation& sim);

// Reads one value: a string as it is, a 32-bit number appended in hexadecimal with "&h" in front;
// any other type leaves keyVal. False, and an empty keyVal, when it cannot be read.
bool GetKeyValue(Simulation& sim, std::uint32_t keyRoot, const std::string& keyName,
                 const std::string& subKeyRef, std::string& keyVal);

} // namespace selvane
