// The control table against controls.txt, a snapshot of it with every control on a line, so that a
// change shows there. To renew it:
//
//     SELVANE_RENEW=1 build/debug/bin/core_tests --gtest_filter='ControlTable.*'
#include "app/control_table.h"
#include "replay/stage.h"
#include "replay/value_text.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace selvane {
namespace {

using Lines = std::vector<std::string>;

std::string AsText(std::string_view text)
{
    return std::string(text);
}

std::string AsText(double number)
{
    return replay::NumberText(number);
}

std::string AsText(const std::optional<Colour>& colour)
{
    return replay::ColourText(colour);
}

std::string AsText(const Place& place)
{
    return AsText(place.left) + ' ' + AsText(place.top) + ' ' + AsText(place.width) + ' ' +
           AsText(place.height);
}

template <typename... Columns> std::string Line(const Columns&... columns)
{
    std::string line;
    ((line += (line.empty() ? "" : " | ") + AsText(columns)), ...);
    return line;
}

// In the order of their values.
constexpr const char* kDirections[] = {"horizontal", "vertical"};
constexpr const char* kGlyphs[] = {"no glyph", "step back", "pause", "play", "step forward"};
constexpr const char* kAlignments[] = {"left", "centre", "right"};
constexpr const char* kWeights[] = {"regular", "bold"};
constexpr const char* kUnderlines[] = {"plain", "underlined"};
constexpr const char* kBackdrops[] = {"on the window", "on nothing"};

template <typename Value, std::size_t N>
std::string_view Word(const char* const (&words)[N], Value value)
{
    return words[static_cast<std::size_t>(value)];
}

void AddBarsFieldsAndButtons(Lines& all)
{
    for (const ScrollBarRow& row : ScrollBarTable())
        all.push_back(Line("bar", row.name, Word(kDirections, row.direction), row.min, row.max,
                           row.smallChange, row.largeChange, row.value, row.place));
    for (const FieldRow& row : FieldTable())
        all.push_back(
            Line("field", row.name, row.text, row.place, ScrollBarTable()[Index(row.bar)].name));
    for (const ButtonRow& row : ButtonTable())
        all.push_back(Line("button", row.name, row.caption, Word(kGlyphs, row.glyph), row.place,
                           row.visible ? "shown" : "hidden"));
}

void AddLabelsItemsAndTimers(Lines& all)
{
    for (const LabelRow& row : LabelTable())
        all.push_back(Line("label", row.name, row.caption, row.place,
                           Word(kAlignments, row.alignment), Word(kWeights, row.weight),
                           Word(kUnderlines, row.underline), row.points, row.colour,
                           Word(kBackdrops, row.backdrop), row.toolTip));
    for (const MenuRow& row : MenuTable())
        all.push_back(Line("item", row.name, row.caption,
                           row.under ? MenuTable()[Index(*row.under)].name : "bar",
                           row.checked     ? "checked"
                           : row.checkable ? "unchecked"
                                           : "no mark"));
    for (const TimerRow& row : TimerTable()) all.push_back(Line("timer", row.name, row.intervalMs));
}

void AddPicturesAndTheWindow(Lines& all)
{
    for (const PictureRow& row : {kPicSelvane, kPicDemo})
        all.push_back(Line("picture", row.name, row.place, std::optional(row.background),
                           std::optional(row.foreColor), std::optional(row.fillColor)));
    for (const FrameRow& row : FrameTable())
        all.push_back(Line("frame", row.name, row.place, row.fill));
    all.push_back(Line("pane", kHelpPane));
    all.push_back(Line("marker", kMarkerSize));
    all.push_back(Line("window", kWindowOuter, kClientWidth, kClientHeight,
                       std::optional(kWindowColour), kApplicationTitle));
}

Lines WholeTable()
{
    Lines all;
    AddBarsFieldsAndButtons(all);
    AddLabelsItemsAndTimers(all);
    AddPicturesAndTheWindow(all);
    return all;
}

constexpr const char* kSnapshot = SELVANE_SCENARIOS "/../controls.txt";

// The snapshot's lines, its remarks apart.
struct Snapshot
{
    Lines remarks, table;
};

Snapshot ReadSnapshot()
{
    Snapshot snapshot;
    std::ifstream file(kSnapshot);
    for (std::string line; std::getline(file, line);)
        (line.starts_with('#') ? snapshot.remarks : snapshot.table).push_back(line);
    return snapshot;
}

} // namespace

TEST(ControlTable, IsThatOfTheSnapshot)
{
    const Snapshot snapshot = ReadSnapshot();
    const Lines actual = WholeTable();
    if (std::getenv("SELVANE_RENEW")) {
        std::ofstream file(kSnapshot);
        for (const Lines* lines : {&snapshot.remarks, &actual})
            for (const std::string& line : *lines) file << line << '\n';
        GTEST_SKIP() << "renewed: see the difference in controls.txt";
    }
    for (std::size_t at = 0; at < std::max(actual.size(), snapshot.table.size()); ++at)
        EXPECT_EQ(at < actual.size() ? actual[at] : "(nothing)",
                  at < snapshot.table.size() ? snapshot.table[at] : "(nothing)");
}

// Scripts, screen readers and tests find a control by its name.
TEST(ControlTable, NoNameStandsTwice)
{
    std::set<std::string> names;
    for (const std::string& line : WholeTable()) {
        const std::size_t name = line.find(" | ") + 3;
        EXPECT_TRUE(names.insert(line.substr(name, line.find(" | ", name) - name)).second) << line;
    }
}

// What the pictures hold once the window is loaded and nothing has been drawn.
TEST(ControlTable, PicturesAtLoad)
{
    Simulation sim;
    LoadMainWindow(sim);
    EXPECT_EQ(sim.picSelvane.FillStyle, Fill::Solid);
    EXPECT_EQ(sim.picDemo.ForeColor, kBlack);
    EXPECT_EQ(sim.picDemo.FillColor, kBlack);
    for (const Picture* picture : {&sim.picSelvane, &sim.picDemo}) {
        EXPECT_EQ(picture->ScaleLeft, -picture->Width / 2);
        EXPECT_EQ(picture->ScaleTop, picture->Height / 2);
        EXPECT_EQ(picture->ScaleWidth, picture->Width);
        EXPECT_EQ(picture->ScaleHeight, -picture->Height);
        EXPECT_TRUE(picture->drawing.Strokes().empty());
    }
}

} // namespace selvane
