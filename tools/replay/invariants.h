// What must hold whenever a handler has returned, whatever was done.
#pragma once

#include "replay/player.h"

#include <string>
#include <string_view>

namespace selvane::replay {

// No word for a number that is none, no exponent.
bool SaysNothingOdd(std::string_view text);

// What is wrong with the program now, in a few words; empty when all is well.
std::string BrokenPromise(const Player& player);

} // namespace selvane::replay
