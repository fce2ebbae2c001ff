// Player: the whole program on a scripted machine, without a screen, and the actions that drive it.
#pragma once

#include "replay/action.h"
#include "replay/dump.h"
#include "replay/stage.h"

namespace selvane::replay {

class Player
{
public:
    // The program as it comes up on that machine.
    explicit Player(const LocalTime& time = {2012, 7, 28, 14, 48, 46},
                    std::set<std::string, std::less<>> missing = {})
        : stage_(time, std::move(missing))
    {}

    // Carries the action out to its end. The reason comes back where a user could not have taken
    // it; then nothing has changed.
    Refusal Do(const Action& action);

    Dump Take(Calls calls = Calls::Counted) const;

    const Simulation& Program() const { return stage_.sim; }
    const ScriptedPlatform& Machine() const { return stage_.platform; }

private:
    Stage stage_;
};

} // namespace selvane::replay
