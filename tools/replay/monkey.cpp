#include "replay/monkey.h"

#include "app/control_table.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"

#include <cstdio>

namespace selvane::replay {

namespace {

using namespace std::string_view_literals;

// Where handlers clamp, wrap, push or part their ways.
constexpr int kTellingValues[] = {0,   1,   -1,  6,    7,    8,    10,   15,   32,  60,   75,  80,
                                  89,  90,  91,  99,   100,  179,  180,  181,  270, 359,  360, 361,
                                  397, 358, -20, -180, -181, -359, -360, -361, 365, 1000, -200};

constexpr std::string_view kTexts[] = {
    "",       "0",     "-0",   "1",     "30",
    "63.4",   "-45",   "600",  "1500",  "39700",
    "0.5",    "-0.1",  "0.99", "1.5",   "-1",
    "abc",    "5 km",  "  7",  "1e3",   ".5",
    "5.",     "8000",  "9000", "12000", "+12",
    "90",     "180",   "270",  "360",   "1e400",
    "nan",    "inf",   "0x10", "1e308", "-1e308",
    "1e-300", "-6371", "1e12", "1e13",  "½",
    "1,5",    "--7",   "\t4",  "😀",     "99999999999999999999999999"};

constexpr std::string_view kDocuments[] = {"Help(20).rtf", "Help(21).rtf",    "Help(22).rtf",
                                           "Help(31).rtf", "Help(32).rtf",    "GeoOrbit.rtf",
                                           "Molniya.rtf",  "EarthSun.rtf",    "SunSynch.rtf",
                                           "Energy.rtf",   "Introduction.rtf"};

} // namespace

int Monkey::Between(int least, int most)
{
    return least + static_cast<int>(Below(static_cast<std::size_t>(most - least + 1)));
}

std::string_view Monkey::AnyOf(std::span<const std::string_view> choices)
{
    return choices[Below(choices.size())];
}

template <typename Row> std::string Monkey::AnyName(std::span<const Row> table)
{
    return std::string(table[Below(table.size())].name);
}

std::string Monkey::MoveBar()
{
    const ScrollBarRow& row = ScrollBarTable()[Below(kScrollBarCount)];
    const std::string name(row.name);
    if (Below(4) == 0) return "arrow " + name + (Below(2) ? " +" : " -");
    if (Below(4) == 0) return "page " + name + (Below(2) ? " +" : " -");
    const int value = Below(2) ? kTellingValues[Below(std::size(kTellingValues))]
                               : Between(row.min - 50, row.max + 50);
    return "scroll " + name + ' ' + std::to_string(value);
}

std::string Monkey::TypeSomething()
{
    const std::string text =
        Below(3) == 0 ? std::to_string(Between(-500, 20'000)) : std::string(AnyOf(kTexts));
    return "type " + AnyName(FieldTable()) + (text.empty() ? "" : ' ' + text);
}

std::string Monkey::ChooseItem()
{
    const std::string item = AnyName(MenuTable());
    if (item == "mnUserGuide" || item == "mnAbout") away_ = true;
    return "menu " + item;
}

std::string Monkey::SetClock()
{
    char text[32];
    std::snprintf(text, sizeof text, "clock %04d-%02d-%02dT%02d:%02d:%02d", Between(1, 9999),
                  Between(1, 12), Between(1, 28), Between(0, 23), Between(0, 59), Between(0, 59));
    return text;
}

std::string Monkey::ChangeDocuments()
{
    return (Below(2) ? "docs present " : "docs missing ") + std::string(AnyOf(kDocuments));
}

std::string Monkey::InAnotherWindow()
{
    static constexpr std::string_view kBack[] = {"activate"sv, "guide close"sv, "about close"sv,
                                                 "about click cmdOK"sv};
    static constexpr std::string_view kStay[] = {"guide activate"sv, "about activate"sv,
                                                 "menu mnUserGuide"sv, "menu mnAbout"sv};
    switch (Below(5)) {
    case 0:
        return std::string(AnyOf(kStay));
    case 1:
        return "guide click " + AnyName(TopicTable());
    case 2:
        return "about click " + AnyName(AboutTable());
    default:
        away_ = Below(2) == 0;
        return std::string(AnyOf(kBack));
    }
}

std::string Monkey::Next()
{
    if (away_ && Below(2) == 0) return InAnotherWindow();
    const std::size_t dice = Below(100);
    if (dice < 25) return MoveBar();
    if (dice < 37) return TypeSomething();
    if (dice < 55) return "click " + AnyName(ButtonTable());
    if (dice < 68) return ChooseItem();
    if (dice < 92) return "tick " + AnyName(TimerTable());
    if (dice < 94) return "label lblReturnToTutorial";
    if (dice < 96) return SetClock();
    if (dice < 98) return ChangeDocuments();
    return InAnotherWindow();
}

} // namespace selvane::replay
