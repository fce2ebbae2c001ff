#include "replay/dump.h"

#include "replay/sim_fields.h"
#include "replay/stroke_text.h"
#include "replay/value_text.h"

#include <cstdio>

namespace selvane::replay {

namespace {

// Puts the properties of one control into a dump.
struct Entry
{
    Dump& dump;
    std::string prefix; // its name and a point

    void Text(std::string_view property, std::string_view text)
    {
        dump[prefix + std::string(property)] = Escaped(text);
    }
    void Truth(std::string_view property, bool truth) { Text(property, truth ? "1" : "0"); }
    void Whole(std::string_view property, long long number)
    {
        Text(property, std::to_string(number));
    }
    void Number(std::string_view property, const std::optional<double>& number)
    {
        Text(property, number ? NumberText(*number) : "-");
    }
    void Paint(std::string_view property, const std::optional<Colour>& colour)
    {
        Text(property, ColourText(colour));
    }
};

Entry EntryOf(Dump& dump, std::string_view name)
{
    return {dump, std::string(name) + '.'};
}

void AddScrollBars(Dump& dump, const Controls& controls)
{
    for (const ScrollBarRow& row : ScrollBarTable()) {
        const ScrollBar& bar = controls.scrollBars[Index(row.id)];
        Entry entry = EntryOf(dump, row.name);
        entry.Whole("value", bar.value);
        entry.Whole("min", bar.min);
        entry.Whole("max", bar.max);
        entry.Whole("small", bar.smallChange);
        entry.Whole("large", bar.largeChange);
        entry.Truth("visible", bar.visible);
    }
}

void AddFieldsAndButtons(Dump& dump, const Controls& controls)
{
    for (const FieldRow& row : FieldTable()) {
        Entry entry = EntryOf(dump, row.name);
        entry.Text("text", controls.fields[Index(row.id)].text);
        entry.Truth("visible", controls.fields[Index(row.id)].visible);
    }
    for (const ButtonRow& row : ButtonTable())
        EntryOf(dump, row.name).Truth("visible", controls.buttons[Index(row.id)].visible);
}

void AddLabels(Dump& dump, const Controls& controls)
{
    for (const LabelRow& row : LabelTable()) {
        const Label& label = controls.labels[Index(row.id)];
        Entry entry = EntryOf(dump, row.name);
        entry.Text("caption", label.caption);
        entry.Text("tooltip", label.toolTip);
        entry.Truth("visible", label.visible);
    }
    Entry marker = EntryOf(dump, "lblSat");
    marker.Truth("visible", controls.lblSat.visible);
    marker.Paint("back", controls.lblSat.back);
    marker.Number("left", controls.lblSat.left);
    marker.Number("top", controls.lblSat.top);
}

void AddTimersAndMenu(Dump& dump, const Controls& controls)
{
    for (const TimerRow& row : TimerTable()) {
        Entry entry = EntryOf(dump, row.name);
        entry.Truth("enabled", controls.timers[Index(row.id)].enabled);
        entry.Whole("interval", controls.timers[Index(row.id)].interval);
    }
    for (const MenuRow& row : MenuTable())
        if (row.under && row.id != mnSeparator)
            EntryOf(dump, row.name).Truth("checked", controls.menu[Index(row.id)].checked);
}

void AddPicture(Dump& dump, std::string_view name, const Picture& picture)
{
    Entry entry = EntryOf(dump, name);
    entry.Number("ScaleLeft", picture.ScaleLeft);
    entry.Number("ScaleTop", picture.ScaleTop);
    entry.Number("ScaleWidth", picture.ScaleWidth);
    entry.Number("ScaleHeight", picture.ScaleHeight);
    entry.Whole("FillStyle", static_cast<int>(picture.FillStyle));
    entry.Paint("ForeColor", picture.ForeColor);
    entry.Paint("FillColor", picture.FillColor);
}

std::string_view ActiveWindow(const Windows& windows)
{
    if (windows.order.empty()) return "-";
    switch (windows.order.back()) {
    case WindowId::Main:
        return "main";
    case WindowId::UserGuide:
        return "guide";
    case WindowId::About:
        break;
    }
    return "about";
}

void AddWindows(Dump& dump, const Simulation& sim)
{
    Entry window = EntryOf(dump, "window");
    window.Text("active", ActiveWindow(sim.windows));
    window.Truth("running", sim.windows.running);
    if (IsLoaded(sim, WindowId::UserGuide))
        EntryOf(dump, "guide").Text("document", sim.windows.frmUserGuide.txtHelp.document);
    if (IsLoaded(sim, WindowId::About)) {
        Entry about = EntryOf(dump, "about");
        about.Text("caption", sim.windows.frmAbout.caption);
        about.Text("version", sim.windows.frmAbout.lblVersion);
        about.Text("title", sim.windows.frmAbout.lblTitle);
    }
}

std::string Hexadecimal(std::uint32_t number)
{
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08x", static_cast<unsigned>(number));
    return digits;
}

std::string FiveDigits(std::size_t number)
{
    std::string digits = std::to_string(number);
    return std::string(digits.size() < 5 ? 5 - digits.size() : 0, '0') + digits;
}

} // namespace

Dump RecordsOf(const Simulation& sim)
{
    Dump dump;
    AddWindows(dump, sim);
    AddScrollBars(dump, sim.controls);
    AddFieldsAndButtons(dump, sim.controls);
    AddLabels(dump, sim.controls);
    AddTimersAndMenu(dump, sim.controls);
    EntryOf(dump, "txtHelp").Text("document", sim.controls.txtHelp.document);
    AddPicture(dump, kPicSelvane.name, sim.picSelvane);
    AddPicture(dump, kPicDemo.name, sim.picDemo);
    for (const SimField& field : SimFields())
        dump["sim." + std::string(field.name)] = field.text(sim);
    return dump;
}

void AddStrokes(Dump& dump, std::string_view picture, const raster::Drawing& drawing, Calls calls)
{
    Entry entry = EntryOf(dump, picture);
    entry.Whole("calls", static_cast<long long>(drawing.Strokes().size()));
    entry.Text("digest", Hexadecimal(Digest(drawing)));
    for (std::size_t kind = 0; kind < kStrokeKinds.size(); ++kind)
        entry.Whole("count." + std::string(kStrokeKinds[kind]),
                    static_cast<long long>(Count(drawing, static_cast<raster::StrokeKind>(kind))));
    if (calls == Calls::Counted) return;
    std::size_t number = 0;
    for (const raster::Stroke& stroke : drawing.Strokes())
        dump[entry.prefix + "call." + FiveDigits(number++)] =
            LineOf(drawing, stroke, StrokeNumbers::NineDigits);
}

void AddPlatform(Dump& dump, const ScriptedPlatform& platform)
{
    Entry entry = EntryOf(dump, "platform");
    entry.Whole("calls", static_cast<long long>(platform.Calls()));
    entry.Text("last", platform.Calls() == 0 ? "-" : platform.LastCall());
}

std::string Changes(const Dump& before, const Dump& after)
{
    std::string lines;
    auto old = before.begin();
    for (auto now = after.begin(); now != after.end() || old != before.end();) {
        if (now == after.end() || (old != before.end() && old->first < now->first)) {
            lines += (old++)->first + '\n';
            continue;
        }
        const bool isOld = old != before.end() && old->first == now->first;
        if (!isOld || old->second != now->second) lines += now->first + '=' + now->second + '\n';
        if (isOld) ++old;
        ++now;
    }
    return lines;
}

std::string Lines(const Dump& dump)
{
    return Changes({}, dump);
}

} // namespace selvane::replay
