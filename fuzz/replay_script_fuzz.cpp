// libFuzzer target: any text is a script, or its lines are refused one by one; whatever it does,
// what must always hold holds, and the dump can be taken.
#include "replay/invariants.h"
#include "replay/replay.h"
#include "require.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

namespace {

using namespace selvane;
using namespace selvane::replay;

constexpr int kMostActions = 60;

// All lines that are actions, up to so many.
std::string PlayLines(std::string_view rest)
{
    Player player;
    std::string script;
    for (int played = 0; played < kMostActions && !rest.empty();) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const auto action = ParseAction(line);
        Require(!(action && IsRemark(line)), "an action that is a remark");
        if (!action) continue;
        player.Do(*action);
        ++played;
        const std::string wrong = BrokenPromise(player);
        Require(wrong.empty(), std::string(line) + ": " + wrong);
        script.append(line) += '\n';
    }
    return script;
}

// The tool itself: what was carried out line by line it carries out too.
void Replay(const std::string& script)
{
    Options options;
    options.calls = true;
    options.every = kMostActions;
    std::istringstream input(script);
    std::ostringstream output, errors;
    Require(Run(options, input, output, errors) == 0, errors.str());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string script = PlayLines({reinterpret_cast<const char*>(data), size});
    if (size % 8 == 0) Replay(script);
    return 0;
}
