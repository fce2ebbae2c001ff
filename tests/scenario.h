// Scenarios: user stories as text. The actions of a replay script, with what is expected of the
// program's state between them.
#pragma once

#include "replay/action.h"
#include "replay/dump.h"

#include <filesystem>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace selvane {

// "expect KEY=VALUE" as the dump prints it, or "near KEY=NUMBER WITHIN".
struct Expectation
{
    std::string key, value;
    std::optional<double> number, within; // of "near"
};

struct ScenarioLine
{
    int number; // in the file, from 1
    std::variant<replay::Action, Expectation> content;
};

struct Scenario
{
    std::filesystem::path file;
    std::vector<ScenarioLine> lines;
};

// All stories, sorted by name.
std::vector<std::filesystem::path> ScenarioFiles();

// Fails the running test where the file does not open with a remark, or a line says nothing known.
Scenario ReadScenario(const std::filesystem::path& file);

// Fails the running test with file, line, key, what was expected and what is there.
void Check(const Scenario& scenario, const ScenarioLine& line, const Expectation& expectation,
           const replay::Dump& dump);

// The name of a test: the file's name in letters, digits and underscores.
std::string TestName(const std::filesystem::path& file);

} // namespace selvane
