#include "web/tables.h"

#include "app/control_table.h"
#include "app/handlers.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"
#include "web/json.h"

#include <algorithm>
#include <cmath>

namespace selvane::web {

namespace {

int Pixels(double points)
{
    return static_cast<int>(std::lround(points * 4 / 3));
}

void Write(Json& json, const Place& place)
{
    json.Key("place").Open('[').Value(place.left).Value(place.top).Value(place.width);
    json.Value(place.height).Close(']');
}

void Write(Json& json, std::string_view key, std::optional<Colour> colour)
{
    json.Key(key);
    if (!colour) {
        json.Null();
        return;
    }
    json.Open('[').Value(colour->red).Value(colour->green).Value(colour->blue).Close(']');
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

// Each row as an object: what all have, then what `write` adds.
template <typename Table, typename Add>
void WriteRows(Json& json, std::string_view key, const Table& table, Add add)
{
    json.Key(key).Open('[');
    for (const auto& row : table) {
        json.Open('{').Field("name", row.name);
        add(row);
        json.Close('}');
    }
    json.Close(']');
}

void WriteControls(Json& json)
{
    WriteRows(json, "bars", ScrollBarTable(), [&](const ScrollBarRow& row) {
        Write(json, row.place);
        json.Field("vertical", row.direction == Direction::Vertical);
        json.Field("caption", CaptionOf(row.id));
    });
    WriteRows(json, "fields", FieldTable(), [&](const FieldRow& row) {
        Write(json, row.place);
        json.Field("caption", CaptionOf(row.bar));
    });
    WriteRows(json, "buttons", ButtonTable(), [&](const ButtonRow& row) {
        Write(json, row.place);
        json.Field("caption", row.caption).Field("glyph", NameOf(row.glyph));
    });
    WriteRows(json, "labels", LabelTable(), [&](const LabelRow& row) {
        Write(json, row.place);
        json.Field("align", NameOf(row.alignment)).Field("pixels", Pixels(row.points));
        json.Field("bold", row.weight == Weight::Bold);
        json.Field("underline", row.underline == Underline::Yes);
        Write(json, "colour", row.colour);
        json.Field("filled", row.backdrop == Backdrop::Window);
        json.Field("room", RoomOf(row.id).value_or(0));
        json.Field("link", kHandlers.label[Index(row.id)] != nullptr);
    });
    WriteRows(json, "menus", MenuTable(), [&](const MenuRow& row) {
        json.Field("caption", row.caption).Field("checkable", row.checkable);
        json.Field("under", row.under ? static_cast<int>(Index(*row.under)) : -1);
    });
}

void WriteGuide(Json& json)
{
    json.Key("guide").Open('{').Field("caption", kUserGuideCaption);
    Write(json, kUserGuideClient);
    WriteRows(json, "topics", TopicTable(), [&](const TopicRow& row) {
        Write(json, row.place);
        json.Field("caption", row.caption);
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
    json.Field("width", kAboutClientWidth).Field("height", kAboutClientHeight);
    WriteRows(json, "controls", AboutTable(), [&](const AboutRow& row) {
        Write(json, row.place);
        const std::size_t mark = row.text.find('&');
        std::string text(row.text);
        if (mark != std::string::npos) {
            text.erase(mark, 1);
            json.Field("accessKey", text.substr(mark, 1));
        }
        json.Field("text", text).Field("pixels", Pixels(row.points));
        json.Field("bold", row.weight == Weight::Bold).Field("kind", KindOf(row));
    });
    json.Key("rules").Open('[');
    for (const RuleLine& line : AboutRules()) {
        const auto whole = [](double length) { return static_cast<int>(std::lround(length)); };
        json.Open('{');
        Write(json,
              Place{whole(line.left), whole(line.y), whole(line.right - line.left), line.width});
        Write(json, "colour", line.colour);
        json.Close('}');
    }
    json.Close(']').Close('}');
}

} // namespace

std::string TablesAsJson()
{
    Json json;
    json.Open('{');
    WriteRows(json, "pictures", std::array{kPicSelvane, kPicDemo},
              [&](const PictureRow& row) { Write(json, row.place); });
    WriteControls(json);
    WriteRows(json, "timers", TimerTable(),
              [&](const TimerRow& row) { json.Field("runsHidden", row.id == tmrTime); });
    WriteRows(json, "frames", FrameTable(), [&](const FrameRow& row) {
        Write(json, row.place);
        Write(json, "fill", row.fill);
    });
    json.Key("rulingFrames").Open('[');
    for (const ShapePairRow& row : ShapePairTable()) {
        json.Open('{');
        Write(json, row.frame);
        json.Close('}');
    }
    json.Close(']');
    Write(json, "rulingColour", kRulingColour);
    json.Key("readingOrder").Open('[');
    for (const std::string_view name : ReadingOrder()) json.Value(name);
    json.Close(']').Key("helpPane").Open('{');
    Write(json, kHelpPane);
    json.Close('}');
    WriteGuide(json);
    WriteAbout(json);
    return json.Close('}').Text();
}

} // namespace selvane::web
