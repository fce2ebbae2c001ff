#include "web/records.h"

#include "app/control_table.h"
#include "app/help_pane.h"
#include "rich_text/html.h"
#include "web/json.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace selvane::web {

namespace {

// What the page shows of a record.
auto Shown(const ScrollBar& bar)
{
    return std::tie(bar.min, bar.max, bar.smallChange, bar.largeChange, bar.value, bar.visible);
}
auto Shown(const NumberField& field)
{
    return std::tie(field.text, field.fault, field.visible);
}
auto Shown(const Button& button)
{
    return std::tie(button.visible);
}
auto Shown(const Label& label)
{
    return std::tie(label.caption, label.toolTip, label.visible);
}
auto Shown(const Timer& timer)
{
    return std::tie(timer.enabled, timer.interval);
}
auto Shown(const MenuItem& item)
{
    return std::tie(item.checked);
}

void Write(Json& json, const ScrollBar& bar)
{
    json.Open('{').Field("min", bar.min).Field("max", bar.max).Field("small", bar.smallChange);
    json.Field("large", bar.largeChange).Field("value", bar.value).Field("visible", bar.visible);
    json.Close('}');
}
void Write(Json& json, const NumberField& field)
{
    json.Open('{').Field("text", field.text).Field("fault", field.fault);
    json.Field("visible", field.visible).Close('}');
}
void Write(Json& json, const Button& button)
{
    json.Value(button.visible);
}
void Write(Json& json, const Label& label)
{
    json.Open('{').Field("caption", label.caption).Field("toolTip", label.toolTip);
    json.Field("visible", label.visible).Close('}');
}
void Write(Json& json, const Timer& timer)
{
    json.Open('{').Field("enabled", timer.enabled).Field("interval", timer.interval).Close('}');
}
void Write(Json& json, const MenuItem& item)
{
    json.Value(item.checked);
}

void Write(Json& json, std::optional<Colour> colour)
{
    if (!colour) {
        json.Null();
        return;
    }
    json.Open('[').Value(colour->red).Value(colour->green).Value(colour->blue).Close(']');
}

// Records and table stand in the same order.
template <typename Records, typename Table>
void WriteChanged(Json& json, std::string_view key, const Records& records, const Records* sent,
                  const Table& table)
{
    json.Key(key).Open('{');
    for (std::size_t at = 0; at < records.size(); ++at) {
        if (sent && Shown(records[at]) == Shown((*sent)[at])) continue;
        json.Key(table[at].name);
        Write(json, records[at]);
    }
    json.Close('}');
}

bool SameDocument(const HelpPane& one, const HelpPane& other)
{
    return one.text == other.text && one.loads == other.loads;
}

rich_text::HtmlLink HtmlLinkOf(std::string_view link)
{
    using enum rich_text::HtmlLink::Kind;
    const LinkTarget target = LinkTargetOf(link);
    if (target.kind == LinkTarget::Kind::Document) return {Document, {}};
    if (target.kind == LinkTarget::Kind::Web) return {Web, target.address};
    return {};
}

std::string HtmlOf(const HelpPane& pane)
{
    return pane.text ? rich_text::ToHtml(*pane.text, HtmlLinkOf) : "";
}

void Write(Json& json, const HelpPane& pane)
{
    json.Open('{').Field("html", HtmlOf(pane)).Close('}');
}

void Write(Json& json, const AboutWindow& about)
{
    json.Open('{').Field("caption", about.caption).Key("texts").Open('{');
    json.Field("lblTitle", about.lblTitle).Field("lblVersion", about.lblVersion);
    std::string lines = about.lblDisclaimer; // one line's end, whichever of its two comes first
    std::erase(lines, '\r');
    json.Field("lblDisclaimer", lines).Close('}').Close('}');
}

bool IsLoaded(const Windows& windows, WindowId window)
{
    return std::ranges::find(windows.order, window) != windows.order.end();
}

std::string_view NameOf(WindowId window)
{
    constexpr std::string_view kNames[] = {"main", "guide", "about"};
    return kNames[Index(window)];
}

void WriteWindows(Json& json, const Windows& windows, const Windows* sent)
{
    const bool guide = IsLoaded(windows, WindowId::UserGuide);
    const bool about = IsLoaded(windows, WindowId::About);
    const bool guideWas = sent && IsLoaded(*sent, WindowId::UserGuide);
    const bool aboutWas = sent && IsLoaded(*sent, WindowId::About);
    if (guide &&
        (!guideWas || !SameDocument(windows.frmUserGuide.txtHelp, sent->frmUserGuide.txtHelp))) {
        json.Key("guide");
        Write(json, windows.frmUserGuide.txtHelp);
    }
    if (about && !aboutWas) {
        json.Key("about");
        Write(json, windows.frmAbout);
    }
    if (guideWas && !guide) json.Key("guide").Null();
    if (aboutWas && !about) json.Key("about").Null();
    if (!windows.order.empty() && (!sent || sent->order != windows.order))
        json.Field("active", NameOf(windows.order.back()));
    if (sent && sent->raises != windows.raises)
        json.Field("raised", static_cast<int>(windows.raises));
    if (!windows.running) json.Field("running", false);
}

void WriteOrders(Json& json, const std::vector<PagePlatform::Order>& orders)
{
    json.Key("requests").Open('[');
    for (const PagePlatform::Order& order : orders) {
        if (order.kind == PagePlatform::Order::Kind::Link)
            json.Open('{').Field("kind", "link").Field("target", order.text).Close('}');
        else
            json.Open('{')
                .Field("kind", "message")
                .Field("text", order.text)
                .Field("title", order.title)
                .Close('}');
    }
    json.Close(']');
}

// The row of the pair that rules the orbit's shape; minus one where none does.
int RulingRow(ShapePair pair)
{
    const auto rows = ShapePairTable();
    const auto found = std::ranges::find(rows, pair, &ShapePairRow::pair);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

// The place in the picture's pixels of a coordinate in its user units, held to what a place on a
// page can be.
int PixelAt(double coordinate, double scaleStart, double scaleLength, int pixels)
{
    constexpr double kFarOutside = 10000;
    const double place = (coordinate - scaleStart) * pixels / scaleLength;
    return static_cast<int>(std::lround(std::clamp(place, -kFarOutside, kFarOutside)));
}

} // namespace

ChangeWriter::MarkerPlace ChangeWriter::PlaceOf(const Simulation& sim)
{
    const Marker& record = sim.controls.lblSat;
    const Picture& picture = sim.picSelvane;
    if (!record.left || !record.top) return {};
    return {PixelAt(*record.left, picture.ScaleLeft, picture.ScaleWidth, picture.Width),
            PixelAt(*record.top, picture.ScaleTop, picture.ScaleHeight, picture.Height),
            record.back, record.visible};
}

void ChangeWriter::WriteSpoken(Json& json, std::string_view element, const SpokenText& text)
{
    auto& sent = spoken_[std::string(element)];
    if (sent == text) return;
    sent = text;
    json.Key(element).Open('[').Value(text.name).Value(text.description).Close(']');
}

void ChangeWriter::WriteSpoken(Json& json, const Simulation& sim)
{
    const auto controls = [&](const auto& table) {
        for (const auto& row : table) WriteSpoken(json, row.name, Spoken(sim, row.id));
    };
    json.Key("spoken").Open('{');
    controls(ScrollBarTable());
    controls(FieldTable());
    controls(ButtonTable());
    controls(LabelTable());
    WriteSpoken(json, kPicSelvane.name, SpokenMainPicture(sim));
    WriteSpoken(json, kPicDemo.name, SpokenTutorialPicture(sim));
    WriteSpoken(json, "lblSat", SpokenMarker());
    WriteSpoken(json, "txtHelp", SpokenPane(sim, WindowId::Main));
    if (IsLoaded(sim.windows, WindowId::UserGuide)) {
        WriteSpoken(json, "frmUserGuide.txtHelp", SpokenPane(sim, WindowId::UserGuide));
        for (const TopicRow& row : TopicTable())
            WriteSpoken(json, "frmUserGuide." + std::string(row.name), Spoken(row.topic));
    }
    if (IsLoaded(sim.windows, WindowId::About))
        for (const AboutRow& row : AboutTable())
            WriteSpoken(json, "frmAbout." + std::string(row.name), Spoken(sim, row.control));
    json.Close('}');
}

std::string ChangeWriter::Changes(const Simulation& sim, std::vector<PagePlatform::Order>& orders)
{
    const Controls& now = sim.controls;
    const Controls* const sent = sent_ ? &sent_->controls : nullptr;
    const auto before = [sent](auto member) { return sent ? &(sent->*member) : nullptr; };
    Json json;
    json.Open('{');
    WriteChanged(json, "bars", now.scrollBars, before(&Controls::scrollBars), ScrollBarTable());
    WriteChanged(json, "fields", now.fields, before(&Controls::fields), FieldTable());
    WriteChanged(json, "buttons", now.buttons, before(&Controls::buttons), ButtonTable());
    WriteChanged(json, "labels", now.labels, before(&Controls::labels), LabelTable());
    WriteChanged(json, "timers", now.timers, before(&Controls::timers), TimerTable());
    WriteChanged(json, "menus", now.menu, before(&Controls::menu), MenuTable());

    const MarkerPlace marker = PlaceOf(sim);
    if (!sent_ || sent_->marker != marker) {
        json.Key("marker").Open('{').Field("left", marker.left).Field("top", marker.top);
        json.Key("colour");
        Write(json, marker.colour);
        json.Field("visible", marker.visible).Close('}');
    }
    if (!sent || !SameDocument(sent->txtHelp, now.txtHelp)) {
        json.Key("pane");
        Write(json, now.txtHelp);
    }
    WriteWindows(json, sim.windows, sent_ ? &sent_->windows : nullptr);
    if (!sent_ || sent_->ruling != sim.state.ShapeInput)
        json.Field("ruling", RulingRow(sim.state.ShapeInput));
    WriteSpoken(json, sim);
    WriteOrders(json, orders);
    orders.clear();
    sent_ = Sent{now, sim.windows, marker, sim.state.ShapeInput};
    return json.Close('}').Text();
}

} // namespace selvane::web
