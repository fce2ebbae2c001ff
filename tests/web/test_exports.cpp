// What the page's tests ask of its module besides what the page does: the state as text, a second
// program beside the page's, and whole scripts.
#include "replay/action.h"
#include "replay/monkey.h"
#include "replay/player.h"
#include "replay/replay.h"
#include "web/exports.h"

#include <sstream>

namespace selvane::web {

namespace {

using replay::Calls;
using replay::Dump;

Dump DumpOf(const Simulation& sim, Calls calls)
{
    Dump dump = replay::RecordsOf(sim);
    replay::AddStrokes(dump, kPicSelvane.name, sim.picSelvane.drawing, calls);
    replay::AddStrokes(dump, kPicDemo.name, sim.picDemo.drawing, calls);
    return dump;
}

// The program beside the page's, on a scripted machine.
replay::Player& Twin()
{
    static replay::Player twin;
    return twin;
}

} // namespace

extern "C" {

// The dump of the page's simulation.
EXPORT(test_dump) int TestDump(bool listed)
{
    return Output(replay::Lines(DumpOf(PageSimulation(), listed ? Calls::Listed : Calls::Counted)));
}

// The twin takes the action in the input; the reason comes back where it refuses.
EXPORT(test_twin_do) int TestTwinDo(int bytes)
{
    const auto action = replay::ParseAction(InputText(bytes));
    return Output(action ? Twin().Do(*action).value_or("") : "no action");
}

// What differs between the page's simulation and the twin; empty when nothing does.
EXPORT(test_twin_differences) int TestTwinDifferences()
{
    return Output(replay::Changes(DumpOf(Twin().Program(), Calls::Counted),
                                  DumpOf(PageSimulation(), Calls::Counted)));
}

// How much the twin has asked of its machine, and what last.
EXPORT(test_twin_requests) int TestTwinRequests()
{
    const auto& machine = Twin().Machine();
    return Output(std::to_string(machine.Calls()) + ' ' + machine.LastCall());
}

// Which window is active, as the page names them by number; the module's memory in bytes.
EXPORT(test_active) int TestActive()
{
    const std::vector<WindowId>& order = PageSimulation().windows.order;
    return order.empty() ? -1 : static_cast<int>(order.back());
}
EXPORT(test_memory) std::size_t TestMemory()
{
    return __builtin_wasm_memory_size(0) * 65536;
}

// The monkey's next actions from that seed, a line each.
EXPORT(test_monkey) int TestMonkey(int seed, int count)
{
    replay::Monkey monkey(static_cast<std::uint64_t>(seed));
    std::string lines;
    for (int each = 0; each < count; ++each) lines += monkey.Next() + '\n';
    return Output(lines);
}

// What replay prints for the script in the input.
EXPORT(test_replay) int TestReplay(int bytes)
{
    std::istringstream script(InputText(bytes));
    std::ostringstream output, errors;
    replay::Run({}, script, output, errors);
    return Output(output.str() + errors.str());
}

} // extern "C"

} // namespace selvane::web
