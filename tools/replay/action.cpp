#include "replay/action.h"

#include "app/control_table.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <limits>

namespace selvane::replay {

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// The identifier that a table gives a name.
template <typename Row, typename Id>
std::optional<Id> Named(std::span<const Row> table, Id Row::*id, std::string_view name)
{
    const auto row = std::ranges::find(table, name, &Row::name);
    if (row == table.end()) return std::nullopt;
    return (*row).*id;
}

std::optional<int> ParseDirection(std::string_view text)
{
    if (text == "+") return 1;
    if (text == "-") return -1;
    return std::nullopt;
}

// What stands behind an action's first word. Each part is taken off in turn; Done says whether
// nothing is left.
struct Rest
{
    std::string_view text;

    std::string_view Word() { return TakeWord(text); }
    bool Done() const { return Trimmed(text).empty(); }
    auto Bar() { return Named(ScrollBarTable(), &ScrollBarRow::id, Word()); }
};

// The action, if all its parts are there and nothing stands behind them.
template <typename Made, typename... Parts>
std::optional<Action> Make(const Rest& rest, const std::optional<Parts>&... parts)
{
    if (!rest.Done() || !(parts.has_value() && ...)) return std::nullopt;
    return Made{*parts...};
}

std::optional<Action> ParseScroll(Rest rest)
{
    const auto bar = rest.Bar();
    const auto value = ParseWholeNumber(rest.Word());
    return Make<ScrollTo>(rest, bar, value);
}

template <typename Made> std::optional<Action> ParseStep(Rest rest)
{
    const auto bar = rest.Bar();
    const auto direction = ParseDirection(rest.Word());
    return Make<Made>(rest, bar, direction);
}

std::optional<Action> ParseType(Rest rest)
{
    const auto field = Named(FieldTable(), &FieldRow::id, rest.Word());
    if (!field) return std::nullopt;
    return TypeText{*field, std::string(rest.text)};
}

template <typename Made, typename Row, typename Id>
std::optional<Action> ParseName(Rest rest, std::span<const Row> table, Id Row::*id)
{
    const auto named = Named(table, id, rest.Word());
    return Make<Made>(rest, named);
}

// "activate", "click NAME" or "close", behind the name of a secondary window.
template <typename Click, typename Row, typename Id>
std::optional<Action> ParseWindow(Rest rest, WindowId window, std::span<const Row> table,
                                  Id Row::*id)
{
    const std::string_view verb = rest.Word();
    if (verb == "click") return ParseName<Click>(rest, table, id);
    if (!rest.Done()) return std::nullopt;
    if (verb == "activate") return Activation{window};
    if (verb == "close") return Closing{window};
    return std::nullopt;
}

std::optional<Action> ParseDocument(Rest rest)
{
    const std::string_view state = rest.Word();
    const std::string_view name = Trimmed(rest.text);
    if (name.empty() || (state != "missing" && state != "present")) return std::nullopt;
    return DocumentChange{std::string(name), state == "present"};
}

std::optional<Action> ParseClock(Rest rest)
{
    const auto time = ParseTime(rest.Word());
    return Make<ClockSetting>(rest, time);
}

// The digits at a place of the text; -1 when anything but digits stands there.
int Digits(std::string_view text, std::size_t at, std::size_t count)
{
    int value = 0;
    for (const char digit : text.substr(at, count)) {
        if (digit < '0' || digit > '9') return -1;
        value = value * 10 + (digit - '0');
    }
    return value;
}

} // namespace

std::string_view TakeWord(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    const std::size_t length = std::min(text.find_first_of(kBlanks), text.size());
    const std::string_view word = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return word;
}

std::optional<int> ParseWholeNumber(std::string_view text)
{
    const bool negative = text.starts_with('-');
    if (text.starts_with('+')) text.remove_prefix(1);
    const std::size_t sign = negative ? 1 : 0;
    if (text.size() == sign || text.find_first_not_of("0123456789", sign) != std::string_view::npos)
        return std::nullopt;
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range)
        return negative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return value;
}

std::optional<LocalTime> ParseTime(std::string_view text)
{
    constexpr std::string_view kShape = "0000-00-00T00:00:00";
    if (text.size() != kShape.size()) return std::nullopt;
    for (const std::size_t mark : {4u, 7u, 10u, 13u, 16u})
        if (text[mark] != kShape[mark]) return std::nullopt;
    const LocalTime time{Digits(text, 0, 4),  Digits(text, 5, 2),  Digits(text, 8, 2),
                         Digits(text, 11, 2), Digits(text, 14, 2), Digits(text, 17, 2)};
    const auto within = [](int value, int least, int most) {
        return value >= least && value <= most;
    };
    if (!within(time.year, 1, 9999) || !within(time.month, 1, 12) || !within(time.day, 1, 31) ||
        !within(time.hour, 0, 23) || !within(time.minute, 0, 59) || !within(time.second, 0, 59))
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(time.year),
                                           std::chrono::month(static_cast<unsigned>(time.month)),
                                           std::chrono::day(static_cast<unsigned>(time.day))};
    if (!date.ok()) return std::nullopt;
    return time;
}

bool IsRemark(std::string_view line)
{
    line = Trimmed(line);
    return line.empty() || line.front() == '#';
}

std::optional<Action> ParseAction(std::string_view line)
{
    Rest rest{line};
    const std::string_view verb = rest.Word();
    if (verb == "scroll") return ParseScroll(rest);
    if (verb == "arrow") return ParseStep<ArrowClick>(rest);
    if (verb == "page") return ParseStep<PageClick>(rest);
    if (verb == "type") return ParseType(rest);
    if (verb == "click") return ParseName<ButtonClick>(rest, ButtonTable(), &ButtonRow::id);
    if (verb == "menu") return ParseName<MenuChoice>(rest, MenuTable(), &MenuRow::id);
    if (verb == "label") return ParseName<LabelClick>(rest, LabelTable(), &LabelRow::id);
    if (verb == "tick") return ParseName<TimerTick>(rest, TimerTable(), &TimerRow::id);
    if (verb == "clock") return ParseClock(rest);
    if (verb == "docs") return ParseDocument(rest);
    if (verb == "guide")
        return ParseWindow<TopicClick>(rest, WindowId::UserGuide, TopicTable(), &TopicRow::topic);
    if (verb == "about")
        return ParseWindow<AboutClick>(rest, WindowId::About, AboutTable(), &AboutRow::control);
    if (!rest.Done()) return std::nullopt;
    if (verb == "activate") return Activation{WindowId::Main};
    if (verb == "close") return Closing{WindowId::Main};
    return std::nullopt;
}

} // namespace selvane::replay
