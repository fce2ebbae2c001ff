// The state of the program as text: a sorted list of keys and values.
#pragma once

#include "app/simulation.h"
#include "replay/scripted_platform.h"

#include <map>
#include <string>

namespace selvane::replay {

// Keys in byte order.
using Dump = std::map<std::string, std::string>;

// What the program's own records say: controls, windows, scales, SimState.
Dump RecordsOf(const Simulation& sim);

enum class Calls { Counted, Listed };

// What was drawn since the last Cls, and what was asked of the machine.
void AddStrokes(Dump& dump, std::string_view picture, const raster::Drawing& drawing, Calls calls);
void AddPlatform(Dump& dump, const ScriptedPlatform& platform);

// What differs, as lines "key=value"; a key that is gone stands without its '='.
std::string Changes(const Dump& before, const Dump& after);
std::string Lines(const Dump& dump);

} // namespace selvane::replay
