#include "documents/about_box.h"

#include "app/simulation.h"

#include <array>
#include <charconv>

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

// The registry's own numbers.
constexpr std::uint32_t kLocalMachine = 0x80000002; // HKEY_LOCAL_MACHINE
constexpr std::uint32_t kAllAccess = 0x2003F;
constexpr std::uint32_t kStringType = 1, kNumberType = 4;
constexpr std::uint32_t kBufferSize = 1024;

// One ending character of code 0 is no part of a value.
std::string_view WithoutEndingZero(std::string_view bytes)
{
    if (!bytes.empty() && bytes.back() == '\0') bytes.remove_suffix(1);
    return bytes;
}

// Each byte's own digits, upper case and without leading zeros, from the last byte to the first.
std::string HexadecimalDigits(std::string_view bytes)
{
    std::string digits;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        std::array<char, 2> two{};
        const auto code = static_cast<unsigned char>(*byte);
        const auto end = std::to_chars(two.data(), two.data() + two.size(), code, 16).ptr;
        for (const char* digit = two.data(); digit != end; ++digit)
            digits += *digit >= 'a' ? static_cast<char>(*digit - 'a' + 'A') : *digit;
    }
    return digits;
}

// The tool's full path; nothing where the registry does not tell one. A path that stands in the
// registry itself is taken at its word.
std::optional<std::string> SystemInformationPath(Simulation& sim)
{
    std::string path;
    if (GetKeyValue(sim, kLocalMachine, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path))
        return path;
    if (!GetKeyValue(sim, kLocalMachine, "SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO",
                     path))
        return std::nullopt;
    path += "\\MSINFO32.EXE";
    if (!sim.platform.FileExists(path)) return std::nullopt;
    return path;
}

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
    StartSysInfo(sim);
}

void Label1_Click(Simulation& sim)
{
    sim.platform.OpenLink(kMailLink);
}

void LblWebsite_Click(Simulation& sim)
{
    sim.platform.OpenLink(kWebAddress);
}

} // namespace frmAbout

void StartSysInfo(Simulation& sim)
{
    const std::optional<std::string> path = SystemInformationPath(sim);
    if (path && sim.platform.StartProgram(*path)) return;
    sim.platform.ShowMessage("System Information Is Unavailable At This Time", kApplicationTitle);
}

bool GetKeyValue(Simulation& sim, std::uint32_t keyRoot, const std::string& keyName,
                 const std::string& subKeyRef, std::string& keyVal)
{
    const std::optional<RegistryKey> key = sim.platform.OpenKey(keyRoot, keyName, kAllAccess);
    std::optional<RegistryValue> read;
    if (key) {
        read = sim.platform.QueryValue(*key, subKeyRef, kBufferSize);
        sim.platform.CloseKey(*key);
    }
    if (!read) {
        keyVal.clear();
        return false;
    }
    const std::string_view value = WithoutEndingZero(read->bytes);
    if (read->type == kStringType) keyVal = value;
    if (read->type == kNumberType) keyVal = "&h" + keyVal + HexadecimalDigits(value);
    return true;
}

} // namespace selvane
