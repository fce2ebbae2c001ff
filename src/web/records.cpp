#include "web/records.h"

#include "app/control_table.h"
#include "app/handlers.h"
#include "app/help_pane.h"
#include "rich_text/html.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace selvane::web {

namespace {

std::string JsonOf(const ScrollBar& bar)
{
    return Json()
        .Object("min", bar.min, "max", bar.max, "small", bar.smallChange, "value", bar.value,
                "visible", bar.visible)
        .Text();
}

std::string JsonOf(const NumberField& field)
{
    return Json().Object("text", field.text, "fault", field.fault, "visible", field.visible).Text();
}

std::string JsonOf(const Button& button)
{
    return Json().Object("visible", button.visible).Text();
}

std::string JsonOf(const Label& label)
{
    return Json()
        .Object("caption", label.caption, "toolTip", label.toolTip, "visible", label.visible)
        .Text();
}

std::string JsonOf(const Timer& timer)
{
    return Json().Object("enabled", timer.enabled, "interval", timer.interval).Text();
}

std::string JsonOf(const MenuItem& item)
{
    return Json().Object("checked", item.checked).Text();
}

// The place in the picture's pixels of a coordinate in its user units, held to what a place on a
// page can be.
int PixelAt(double coordinate, double scaleStart, double scaleLength, int pixels)
{
    constexpr double kFarOutside = 10000;
    const double place = (coordinate - scaleStart) * pixels / scaleLength;
    return static_cast<int>(std::lround(std::clamp(place, -kFarOutside, kFarOutside)));
}

std::string JsonOf(const Marker& marker, const Picture& picture)
{
    if (!marker.left || !marker.top) return Json().Object("visible", false).Text();
    return Json()
        .Object("left", PixelAt(*marker.left, picture.ScaleLeft, picture.ScaleWidth, picture.Width),
                "top", PixelAt(*marker.top, picture.ScaleTop, picture.ScaleHeight, picture.Height),
                "colour", marker.back, "visible", marker.visible)
        .Text();
}

std::string JsonOf(const AboutWindow& about)
{
    std::string lines = about.lblDisclaimer; // one line's end, whichever of its two comes first
    std::erase(lines, '\r');
    return Json()
        .Object("caption", about.caption, "lblTitle", about.lblTitle, "lblVersion",
                about.lblVersion, "lblDisclaimer", lines)
        .Text();
}

rich_text::HtmlLink HtmlLinkOf(std::string_view link)
{
    using enum rich_text::HtmlLink::Kind;
    const LinkTarget target = LinkTargetOf(link);
    if (target.kind == LinkTarget::Kind::Document) return {Document, {}};
    if (target.kind == LinkTarget::Kind::Web) return {Web, target.address};
    return {};
}

bool IsLoaded(const Windows& windows, WindowId window)
{
    return std::ranges::find(windows.order, window) != windows.order.end();
}

// The frame round the pair that rules the orbit's shape; null where none does.
std::string RulingFrame(ShapePair pair)
{
    const auto rows = ShapePairTable();
    const auto found = std::ranges::find(rows, pair, &ShapePairRow::pair);
    return found == rows.end() ? "null" : Json().Value(found->frame).Text();
}

} // namespace

bool ChangeWriter::IsNew(std::string_view name, const std::string& json)
{
    auto found = sent_.find(name);
    if (found == sent_.end()) found = sent_.emplace(name, "").first;
    if (found->second == json) return false;
    found->second = json;
    return true;
}

void ChangeWriter::Send(std::string_view name, const std::string& json)
{
    if (IsNew(name, json)) json_.Key(name).Raw(json);
}

void ChangeWriter::Forget(std::string_view window)
{
    std::erase_if(sent_,
                  [=](const auto& each) { return each.first.find(window) != std::string::npos; });
}

void ChangeWriter::WriteControls(const Simulation& sim)
{
    const Controls& now = sim.controls;
    // Records and table stand in the same order.
    const auto controls = [this](const auto& records, const auto& table) {
        for (std::size_t at = 0; at < records.size(); ++at)
            Send(table[at].name, JsonOf(records[at]));
    };
    json_.Key("controls").Open('{');
    controls(now.scrollBars, ScrollBarTable());
    controls(now.fields, FieldTable());
    controls(now.buttons, ButtonTable());
    controls(now.labels, LabelTable());
    controls(now.timers, TimerTable());
    controls(now.menu, MenuTable());
    Send("lblSat", JsonOf(now.lblSat, sim.picSelvane));
    json_.Close('}');
}

// A window that is opened again is made again, and everything in it sent again.
void ChangeWriter::WriteWindows(const Windows& windows)
{
    Json order;
    order.Open('[');
    for (const WindowId window : windows.order) order.Value(static_cast<int>(window));
    order.Close(']');
    if (IsNew("windows", order.Text())) {
        json_.Key("windows").Raw(order.Text());
        if (!IsLoaded(windows, WindowId::UserGuide)) Forget("frmUserGuide");
        if (!IsLoaded(windows, WindowId::About)) Forget("frmAbout");
    }
    Send("raised", std::to_string(windows.raises));
    Send("running", windows.running ? "true" : "false");
    if (IsLoaded(windows, WindowId::About)) Send("frmAbout", JsonOf(windows.frmAbout));
}

void ChangeWriter::WritePane(std::string_view element, const HelpPane& pane)
{
    if (!IsNew(element, std::to_string(pane.loads))) return;
    json_.Key(element).Value(pane.text ? rich_text::ToHtml(*pane.text, HtmlLinkOf) : "");
}

void ChangeWriter::WriteSpoken(std::string_view element, const SpokenText& text)
{
    std::string words = Json().Open('[').Value(text.name).Value(text.description).Close(']').Text();
    if (IsNew("spoken " + std::string(element), words)) json_.Key(element).Raw(words);
}

void ChangeWriter::WriteSpoken(const Simulation& sim)
{
    const auto controls = [&](const auto& table) {
        for (const auto& row : table) WriteSpoken(row.name, Spoken(sim, row.id));
    };
    json_.Key("spoken").Open('{');
    controls(ScrollBarTable());
    controls(FieldTable());
    controls(ButtonTable());
    for (const LabelRow& row : LabelTable()) // a label says what it shows, unless it is a link
        if (kHandlers.label[Index(row.id)]) WriteSpoken(row.name, Spoken(sim, row.id));
    WriteSpoken(kPicSelvane.name, SpokenMainPicture(sim));
    WriteSpoken(kPicDemo.name, SpokenTutorialPicture(sim));
    WriteSpoken("lblSat", SpokenMarker());
    WriteSpoken("txtHelp", SpokenPane(sim, WindowId::Main));
    if (IsLoaded(sim.windows, WindowId::UserGuide)) {
        WriteSpoken("frmUserGuide.txtHelp", SpokenPane(sim, WindowId::UserGuide));
        for (const TopicRow& row : TopicTable())
            WriteSpoken("frmUserGuide." + std::string(row.name), Spoken(row.topic));
    }
    if (IsLoaded(sim.windows, WindowId::About))
        for (const AboutRow& row : AboutTable())
            WriteSpoken("frmAbout." + std::string(row.name), Spoken(sim, row.control));
    json_.Close('}');
}

std::string ChangeWriter::Changes(const Simulation& sim, std::vector<PagePlatform::Order>& orders)
{
    json_ = Json();
    json_.Open('{');
    WriteControls(sim);
    WriteWindows(sim.windows);
    Send("ruling", RulingFrame(sim.state.ShapeInput));
    json_.Key("panes").Open('{');
    WritePane("txtHelp", sim.controls.txtHelp);
    if (IsLoaded(sim.windows, WindowId::UserGuide))
        WritePane("frmUserGuide.txtHelp", sim.windows.frmUserGuide.txtHelp);
    json_.Close('}');
    WriteSpoken(sim);
    json_.Key("requests").Open('[');
    for (const auto& [kind, text, title] : std::exchange(orders, {}))
        json_.Object("kind", kind, "text", text, "title", title);
    return json_.Close(']').Close('}').Text();
}

} // namespace selvane::web
