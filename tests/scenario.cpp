#include "scenario.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>

namespace selvane {

namespace {

std::optional<double> ParseNumber(std::string_view text)
{
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::optional<Expectation> ParseExpectation(std::string_view line)
{
    const std::string_view verb = replay::TakeWord(line);
    const std::size_t equals = line.find('=');
    const bool drawn = verb == "drawn";
    if ((verb != "expect" && verb != "near" && !drawn) || equals == std::string_view::npos)
        return std::nullopt;
    Expectation expectation{
        std::string(line.substr(0, equals)), std::string(line.substr(equals + 1)), {}, {}, drawn};
    if (verb == "expect" || drawn) return expectation;
    std::string_view numbers = line.substr(equals + 1);
    expectation.number = ParseNumber(replay::TakeWord(numbers));
    expectation.within = ParseNumber(replay::TakeWord(numbers));
    if (!expectation.number || !expectation.within) return std::nullopt;
    return expectation;
}

// The N of "N * action", cut off the line, at least 2; 1 where none stands there.
int TakeTimes(std::string_view& line)
{
    constexpr std::string_view kTimes = " * ";
    int times = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), times);
    const auto digits = static_cast<std::size_t>(end - line.data());
    if (error != std::errc{} || times < 2 || !line.substr(digits).starts_with(kTimes)) return 1;
    line.remove_prefix(digits + kTimes.size());
    return times;
}

bool SameStroke(std::string_view one, std::string_view other)
{
    constexpr double kTwoDecimals = 0.0101;
    while (!one.empty() && !other.empty()) {
        const std::string_view word = replay::TakeWord(one), like = replay::TakeWord(other);
        const std::optional<double> number = ParseNumber(word), near = ParseNumber(like);
        if (number && near ? std::fabs(*number - *near) > kTwoDecimals : word != like) return false;
    }
    return one.empty() == other.empty();
}

bool Holds(const Expectation& expectation, const std::string& actual)
{
    if (expectation.drawn) return SameStroke(expectation.value, actual);
    if (!expectation.number) return actual == expectation.value;
    const std::optional<double> number = ParseNumber(actual);
    return number && std::fabs(*number - *expectation.number) <= *expectation.within;
}

} // namespace

bool Expectation::IsAboutStrokes() const
{
    for (const std::string_view part : {".call.", ".calls", ".count.", ".digest"})
        if (key.starts_with("pic") && key.find(part) != std::string::npos) return true;
    return false;
}

std::vector<std::filesystem::path> StoryFiles()
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(SELVANE_SCENARIOS))
        if (entry.path().extension() == ".scn") files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

Story ReadStory(const std::filesystem::path& file)
{
    Story story{file, {}};
    std::ifstream input(file, std::ios::binary);
    int number = 0;
    for (std::string line; std::getline(input, line);) {
        ++number;
        if (number == 1 && !line.starts_with("# "))
            ADD_FAILURE_AT(file.c_str(), number) << "the first line must say what the user sees";
        if (replay::IsRemark(line)) continue;
        std::string_view once = line;
        const auto times = static_cast<std::size_t>(TakeTimes(once));
        if (const auto action = replay::ParseAction(once))
            story.lines.insert(story.lines.end(), times, {number, *action});
        else if (const auto expectation = ParseExpectation(line))
            story.lines.push_back({number, *expectation});
        else
            ADD_FAILURE_AT(file.c_str(), number) << "neither action nor expectation: " << line;
    }
    if (story.lines.empty()) ADD_FAILURE_AT(file.c_str(), 1) << "an empty scenario";
    return story;
}

void Check(const Story& story, const StoryLine& line, const Expectation& expectation,
           const replay::Dump& dump)
{
    const auto entry = dump.find(expectation.key);
    const std::string actual = entry == dump.end() ? "(no such key)" : entry->second;
    if (entry != dump.end() && Holds(expectation, actual)) return;
    ADD_FAILURE_AT(story.file.c_str(), line.number)
        << expectation.key << "\n  expected: " << expectation.value << "\n  actual:   " << actual;
}

std::string TestName(const std::filesystem::path& file)
{
    std::string name = file.stem().string();
    std::ranges::replace_if(
        name, [](char letter) { return !std::isalnum(static_cast<unsigned char>(letter)); }, '_');
    return name;
}

} // namespace selvane
