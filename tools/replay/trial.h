// Trial: whether a script can be played with nothing going wrong; where it cannot, the shortest
// part of it that fails as well.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace selvane::replay {

using Script = std::vector<std::string>;

// Plays the script on a program of its own. What goes wrong comes back, nothing when all is well.
using Play = std::function<std::string(const Script&)>;

// Plays it in a process of its own, so that a crash is an answer too, and says there on standard
// error what goes wrong. Nothing comes back when all is well, otherwise the short script as text.
std::string ShortestFailure(const Play& play, const Script& script);

// Carries out one action. What is wrong comes back where it has kept the processor for longer than
// 50 ms.
std::string TooLong(const std::function<void()>& action);

} // namespace selvane::replay
