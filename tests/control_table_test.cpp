// The control table against controls.txt, a snapshot of it with every control on a line, so that a
// change shows there. To renew it:
//
//     SELVANE_RENEW=1 build/debug/bin/core_tests --gtest_filter='ControlTable.*'
#include "app/control_table.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"
#include "replay/value_text.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace selvane {
namespace {

// A cell of a row as text.
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
    std::ostringstream text;
    text << place.left << ' ' << place.top << ' ' << place.width << ' ' << place.height;
    return text.str();
}

template <typename... Columns> std::string Line(const Columns&... columns)
{
    std::string line;
    ((line += (line.empty() ? "" : " | ") + AsText(columns)), ...);
    return line + '\n';
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

std::string Below(std::string_view window, std::string_view control)
{
    return std::string(window) + '.' + std::string(control);
}

std::string WholeTable()
{
    std::string all;
    for (const ScrollBarRow& row : ScrollBarTable())
        all += Line("bar", row.name, Word(kDirections, row.direction), row.min, row.max,
                    row.smallChange, row.largeChange, row.value, row.place);
    for (const FieldRow& row : FieldTable())
        all += Line("field", row.name, row.text, row.place, ScrollBarTable()[Index(row.bar)].name);
    for (const ButtonRow& row : ButtonTable())
        all += Line("button", row.name, row.caption, Word(kGlyphs, row.glyph), row.place,
                    row.visible ? "shown" : "hidden");
    for (const LabelRow& row : LabelTable())
        all += Line("label", row.name, row.caption, row.place, Word(kAlignments, row.alignment),
                    Word(kWeights, row.weight), Word(kUnderlines, row.underline), row.points,
                    row.colour, Word(kBackdrops, row.backdrop), row.toolTip);
    for (const MenuRow& row : MenuTable())
        all += Line("item", row.name, row.caption,
                    row.under ? MenuTable()[Index(*row.under)].name : "bar",
                    row.checked     ? "checked"
                    : row.checkable ? "unchecked"
                                    : "no mark");
    for (const TimerRow& row : TimerTable()) all += Line("timer", row.name, row.intervalMs);
    for (const PictureRow& row : {kPicSelvane, kPicDemo})
        all += Line("picture", row.name, row.place, std::optional(row.background),
                    std::optional(row.foreColor), std::optional(row.fillColor));
    for (const FrameRow& row : FrameTable()) all += Line("frame", row.name, row.place, row.fill);
    for (const TopicRow& row : TopicTable())
        all += Line("topic", Below("frmUserGuide", row.name), row.caption, row.place, row.document);
    for (const AboutRow& row : AboutTable())
        all += Line("about", Below("frmAbout", row.name), row.text, row.place,
                    Word(kWeights, row.weight), Word(kUnderlines, row.underline), row.points);
    all += Line("pane", kHelpPane);
    all += Line("marker", kMarkerSize);
    all += Line("window", kWindowOuter, kClientWidth, kClientHeight, std::optional(kWindowColour),
                kApplicationTitle);
    return all;
}

constexpr const char* kSnapshot = SELVANE_SCENARIOS "/../controls.txt";

} // namespace

TEST(ControlTable, IsThatOfTheSnapshot)
{
    std::stringstream snapshot;
    snapshot << std::ifstream(kSnapshot).rdbuf();
    const std::size_t remarks = snapshot.str().find("\nbar | ") + 1;
    const std::string actual = WholeTable();
    if (std::getenv("SELVANE_RENEW")) {
        std::ofstream(kSnapshot) << snapshot.str().substr(0, remarks) << actual;
        GTEST_SKIP() << "renewed: see the difference in controls.txt";
    }
    EXPECT_EQ(actual, snapshot.str().substr(remarks));
}

// Scripts, screen readers and tests find a control by its name.
TEST(ControlTable, NoNameStandsTwice)
{
    std::set<std::string> names;
    std::istringstream table(WholeTable());
    for (std::string line; std::getline(table, line);) {
        const std::size_t name = line.find(" | ") + 3;
        EXPECT_TRUE(names.insert(line.substr(name, line.find(" | ", name) - name)).second) << line;
    }
}

} // namespace selvane
