// Scenarios: user stories as text. The actions of a replay script, "N * action" for N times the
// same, with what is expected of the program's state between them.
#pragma once

#include "replay/action.h"
#include "replay/dump.h"

#include <filesystem>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace selvane {

// "expect KEY=VALUE" as the dump prints it, "near KEY=NUMBER WITHIN", or "drawn KEY=STROKE", whose
// numbers stand with two decimals.
struct Expectation
{
    std::string key, value;
    std::optional<double> number, within{}; // of "near"
    bool drawn = false;

    // Whether it is about drawing calls, which no window shows and which take long to tell.
    bool IsAboutStrokes() const;
};

struct StoryLine
{
    int number; // in the file, from 1
    std::variant<replay::Action, Expectation> content;
};

struct Story
{
    std::filesystem::path file;
    std::vector<StoryLine> lines;
};

// All stories, sorted by name.
std::vector<std::filesystem::path> StoryFiles();

// Fails the running test where the file does not open with a remark, or a line says nothing known.
Story ReadStory(const std::filesystem::path& file);

// Fails the running test with file, line, key, what was expected and what is there.
void Check(const Story& story, const StoryLine& line, const Expectation& expectation,
           const replay::Dump& dump);

// The name of a test: the file's name in letters, digits and underscores.
std::string TestName(const std::filesystem::path& file);

} // namespace selvane
