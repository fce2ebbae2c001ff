#include "web/tables.h"

#include "app/control_table.h"
#include "app/handlers.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"
#include "web/json.h"

#include <array>
#include <cmath>

namespace selvane::web {

namespace {

int Pixels(double points)
{
    return static_cast<int>(std::lround(points * 4 / 3));
}

std::string_view NameOf(Glyph glyph)
{
    constexpr std::string_view kNames[] = {"", "back", "pause", "play", "forward"};
    return kNames[static_cast<std::size_t>(glyph)];
}

std::string_view NameOf(Alignment alignment)
{
    constexpr std::string_view kNames[] = {"left", "center", "right"};
    return kNames[static_cast<std::size_t>(alignment)];
}

std::string_view CaptionOf(ScrollBarId bar)
{
    return LabelTable()[Index(ScrollBarTable()[Index(bar)].caption)].name;
}

// Each row as an object: what all have, then what `add` writes.
template <typename Table, typename Add>
void WriteRows(Json& json, std::string_view key, const Table& table, Add add)
{
    json.Key(key).Open('[');
    for (const auto& row : table) {
        json.Open('{').Members("name", row.name);
        add(row);
        json.Close('}');
    }
    json.Close(']');
}

void WriteControls(Json& json)
{
    WriteRows(json, "bars", ScrollBarTable(), [&](const ScrollBarRow& row) {
        json.Members("place", row.place, "vertical", row.direction == Direction::Vertical,
                     "caption", CaptionOf(row.id));
    });
    WriteRows(json, "fields", FieldTable(), [&](const FieldRow& row) {
        json.Members("place", row.place, "caption", CaptionOf(row.bar));
    });
    WriteRows(json, "buttons", ButtonTable(), [&](const ButtonRow& row) {
        json.Members("place", row.place, "caption", row.caption, "glyph", NameOf(row.glyph));
    });
    WriteRows(json, "labels", LabelTable(), [&](const LabelRow& row) {
        json.Members("place", row.place, "align", NameOf(row.alignment), "pixels",
                     Pixels(row.points), "bold", row.weight == Weight::Bold, "underline",
                     row.underline == Underline::Yes, "colour", row.colour, "filled",
                     row.backdrop == Backdrop::Window, "maxWidth", RoomOf(row.id).value_or(0),
                     "link", kHandlers.label[Index(row.id)] != nullptr);
    });
    WriteRows(json, "menus", MenuTable(), [&](const MenuRow& row) {
        json.Members("caption", row.caption, "checkable", row.checkable, "under",
                     row.under ? static_cast<int>(Index(*row.under)) : -1);
    });
    WriteRows(json, "timers", TimerTable(),
              [&](const TimerRow& row) { json.Members("runsHidden", row.id == tmrTime); });
}

void WriteGuide(Json& json)
{
    json.Key("guide").Open('{').Members("caption", kUserGuideCaption, "place", kUserGuideClient);
    WriteRows(json, "topics", TopicTable(), [&](const TopicRow& row) {
        json.Members("place", row.place, "caption", row.caption);
    });
    json.Close('}');
}

std::string_view KindOf(const AboutRow& row)
{
    using enum AboutControl;
    if (row.control == picIcon) return "icon";
    if (row.control == cmdOK || row.control == cmdSysInfo) return "button";
    return row.underline == Underline::Yes ? "link" : "label";
}

void WriteAbout(Json& json)
{
    json.Key("about").Open('{');
    json.Members("width", kAboutClientWidth, "height", kAboutClientHeight);
    WriteRows(json, "controls", AboutTable(), [&](const AboutRow& row) {
        std::string text(row.text), accessKey;
        if (const std::size_t mark = text.find('&'); mark != std::string::npos) {
            accessKey = text.substr(mark + 1, 1);
            text.erase(mark, 1);
        }
        json.Members("place", row.place, "text", text, "accessKey", accessKey, "pixels",
                     Pixels(row.points), "bold", row.weight == Weight::Bold, "kind", KindOf(row));
    });
    json.Key("rules").Open('[');
    for (const RuleLine& line : AboutRules()) {
        const auto whole = [](double length) { return static_cast<int>(std::lround(length)); };
        const Place place{whole(line.left), whole(line.y), whole(line.right - line.left),
                          line.width};
        json.Object("place", place, "colour", line.colour);
    }
    json.Close(']').Close('}');
}

} // namespace

std::string TablesAsJson()
{
    Json json;
    json.Open('{');
    WriteRows(json, "pictures", std::array{kPicSelvane, kPicDemo},
              [&](const PictureRow& row) { json.Members("place", row.place); });
    WriteControls(json);
    WriteRows(json, "frames", FrameTable(),
              [&](const FrameRow& row) { json.Members("place", row.place, "fill", row.fill); });
    json.Members("rulingColour", kRulingColour, "helpPane", kHelpPane);
    json.Key("readingOrder").Open('[');
    for (const std::string_view name : ReadingOrder()) json.Value(name);
    json.Close(']');
    WriteGuide(json);
    WriteAbout(json);
    return json.Close('}').Text();
}

} // namespace selvane::web
