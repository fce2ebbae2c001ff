#include "replay/replay.h"

#include "replay/action.h"
#include "replay/player.h"

#include <istream>
#include <ostream>

namespace selvane::replay {

namespace {

// Prints dumps of one player, each against the last one printed.
class Printer
{
public:
    Printer(const Options& options, const Player& player, std::ostream& output)
        : options_(options), player_(player), output_(output)
    {}

    void Print(std::size_t number, std::string_view action, const Refusal& refusal)
    {
        Dump dump = player_.Take(options_.calls ? Calls::Listed : Calls::Counted);
        output_ << "@ " << number << ' ' << action << '\n'
                << (options_.full ? Lines(dump) : Changes(last_, dump));
        if (refusal) output_ << "! " << *refusal << '\n';
        last_ = std::move(dump);
    }

private:
    const Options& options_;
    const Player& player_;
    std::ostream& output_;
    Dump last_;
};

// The latest action, for as long as its dump has not been printed.
struct Pending
{
    std::string line;
    Refusal refusal;
};

} // namespace

int Run(const Options& options, std::istream& script, std::ostream& output, std::ostream& errors)
{
    Player player(options.clock, options.missing);
    Printer printer(options, player, output);
    printer.Print(0, "start", std::nullopt);

    int status = 0;
    std::size_t number = 0, lineNumber = 0;
    std::optional<Pending> pending;
    for (std::string line; std::getline(script, line);) {
        ++lineNumber;
        if (IsRemark(line)) continue;
        const std::optional<Action> action = ParseAction(line);
        if (!action) {
            errors << "line " << lineNumber << ": " << line << '\n';
            status = 2;
            break;
        }
        pending = {line, player.Do(*action)};
        if (++number % options.every != 0) continue;
        printer.Print(number, pending->line, pending->refusal);
        pending.reset();
    }
    if (pending) printer.Print(number, pending->line, pending->refusal);
    return output.flush() ? status : 1;
}

} // namespace selvane::replay
