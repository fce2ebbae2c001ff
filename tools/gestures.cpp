#include "gestures.h"

namespace selvane {

namespace {

// The line with another verb, as an action of that kind.
template <typename Act> std::optional<Act> ParseLike(std::string_view verb, std::string_view rest)
{
    const auto action = replay::ParseAction(std::string(verb) + ' ' + std::string(rest));
    if (!action) return std::nullopt;
    return std::get<Act>(*action);
}

std::optional<Gesture> ParseResizing(std::string_view rest)
{
    const auto width = replay::ParseWholeNumber(replay::TakeWord(rest));
    const auto height = replay::ParseWholeNumber(replay::TakeWord(rest));
    if (!width || !height || !rest.empty()) return std::nullopt;
    return Resizing{*width, *height};
}

} // namespace

std::optional<Gesture> ParseGesture(std::string_view line)
{
    if (auto action = replay::ParseAction(line)) return *std::move(action);
    std::string_view rest = line;
    const std::string_view verb = replay::TakeWord(rest);
    if (verb == "resize") return ParseResizing(rest);
    if (verb == "leave" && rest.empty()) return Leaving{};
    if (verb == "paste") {
        if (const auto type = ParseLike<replay::TypeText>("type", rest))
            return Pasting{type->field, type->text};
    } else if (const auto scroll = ParseLike<replay::ScrollTo>("scroll", rest)) {
        if (verb == "wheel") return WheelTurn{scroll->bar, scroll->value};
        if (verb == "drag") return ThumbDrag{scroll->bar, scroll->value};
    }
    return std::nullopt;
}

// Some of an action monkey's lines, done otherwise, and now and then what only a window knows.
std::string GestureMonkey::Next()
{
    const auto below = [this](std::uint64_t bound) { return random_() % bound; };
    if (below(60) == 0) return "leave";
    if (below(25) == 0)
        return "resize " + std::to_string(below(1600)) + ' ' + std::to_string(below(1100));
    const std::string line = monkey_.Next();
    std::string_view rest = line;
    const std::string_view verb = replay::TakeWord(rest);
    if (verb == "type" && below(2) == 0) return "paste " + std::string(rest);
    if (verb != "scroll" || below(3) == 0) return line;
    const std::string bar(replay::TakeWord(rest));
    const int amount = replay::ParseWholeNumber(rest).value_or(0) % 100;
    return below(2) == 0 ? "drag " + bar + ' ' + std::to_string(amount)
                         : "wheel " + bar + ' ' + std::to_string(amount % 8);
}

} // namespace selvane
