#include "documents/about_box.h"

#include "app/simulation.h"

#include <array>

namespace selvane {

namespace {

using enum AboutControl;
using enum Weight;

constexpr std::string_view kWebAddress = "https://selvane.example.org";
constexpr std::string_view kMailLink = "mailto:contact@selvane.example.org";
constexpr std::string_view kNotice =
    "\u00A9 2026 The Selvane developers. Free to use, study, change and share.";

// clang-format off
constexpr std::array<AboutRow, 9> kControls{{
    {picIcon,        "picIcon",        "",                                      {16, 16, 36, 36},    0,    Regular, Underline::No},
    {lblTitle,       "lblTitle",       "",                                      {70, 16, 259, 32},   12,   Bold,    Underline::No},
    {lblVersion,     "lblVersion",     "",                                      {70, 52, 259, 15},   9.75, Regular, Underline::No},
    {lblDescription, "lblDescription", "Selvane by Harrowmere",                 {70, 75, 275, 22},   9.75, Bold,    Underline::No},
    {LblWebsite,     "LblWebsite",     "Website:  https://selvane.example.org", {72, 112, 265, 17},  9,    Regular, Underline::Yes},
    {Label1,         "Label1",         "Contact:  contact@selvane.example.org", {72, 136, 273, 17},  9,    Regular, Underline::Yes},
    {lblDisclaimer,  "lblDisclaimer",  "",                                      {17, 175, 258, 55},  9.75, Regular, Underline::No},
    {cmdOK,          "cmdOK",          "OK",                                    {283, 175, 84, 23},  9,    Regular, Underline::No},
    {cmdSysInfo,     "cmdSysInfo",     "&System Info...",                       {284, 205, 83, 23},  9,    Regular, Underline::No},
}};
// clang-format on

constexpr double kRuleRight = 376 + 14.0 / 15; // 5654 twips

constexpr std::array<RuleLine, 2> kRules{{
    {6, kRuleRight, 163, {128, 128, 128}, 1},
    {7, kRuleRight, 164, {255, 255, 255}, 2},
}};

} // namespace

std::span<const AboutRow> AboutTable()
{
    return kControls;
}

std::span<const RuleLine> AboutRules()
{
    return kRules;
}

void mnAbout_Click(Simulation& sim)
{
    ShowWindow(sim, WindowId::About);
}

namespace frmAbout {

void Form_Load(Simulation& sim)
{
    AboutWindow& box = sim.windows.frmAbout;
    const std::string title{kApplicationTitle};
    box.caption = "About " + title;
    box.lblVersion = "Version " SELVANE_VERSION; // the project's, by the build
    box.lblTitle = title;
    box.lblDisclaimer = std::string{kNotice} + "\n\r" + std::string{kWebAddress};
}

void cmdOK_Click(Simulation& sim)
{
    CloseWindow(sim, WindowId::About);
}

void cmdSysInfo_Click(Simulation& sim)
{
    sim.requests.push_back({Request::Kind::StartSystemInformation});
}

void Label1_Click(Simulation& sim)
{
    sim.requests.push_back({Request::Kind::OpenLink, std::string(kMailLink)});
}

void LblWebsite_Click(Simulation& sim)
{
    sim.requests.push_back({Request::Kind::OpenLink, std::string(kWebAddress)});
}

} // namespace frmAbout

} // namespace selvane
