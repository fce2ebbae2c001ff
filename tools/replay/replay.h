// Replay: reads user actions, one a line, and prints the program's state after each.
#pragma once

#include "app/platform.h"

#include <iosfwd>
#include <optional>
#include <set>
#include <span>
#include <string>

namespace selvane::replay {

struct Options
{
    std::string file;      // "-": standard input
    bool full = false;     // whole dumps instead of changes
    bool calls = false;    // with every drawing call
    std::size_t every = 1; // a dump after every so many actions, and after the last
    LocalTime clock{2012, 7, 28, 14, 48, 46};
    std::set<std::string, std::less<>> missing; // documents that are not there at the start
};

struct UsageFault
{
    std::string text;
};

// The words of a command line, without the program's own name.
std::optional<UsageFault> ReadOptions(std::span<const char* const> words, Options& options);

// Carries the script out. The exit status: 0; 2 after a line that is no action, which is told on
// `errors` with its number and text and ends the run; 1 when the output could not be written.
int Run(const Options& options, std::istream& script, std::ostream& output, std::ostream& errors);

} // namespace selvane::replay
