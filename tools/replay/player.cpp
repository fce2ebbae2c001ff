#include "replay/player.h"

namespace selvane::replay {

namespace {

// What each action is to the program.
struct Doer
{
    Simulation& sim;
    ScriptedPlatform& platform;

    Refusal operator()(const ScrollTo& act) const { return Scroll(sim, act.bar, act.value); }
    Refusal operator()(const ArrowClick& act) const { return StepBar(sim, act.bar, act.direction); }
    Refusal operator()(const PageClick& act) const { return PageBar(sim, act.bar, act.direction); }
    Refusal operator()(const TypeText& act) const { return Type(sim, act.field, act.text); }
    Refusal operator()(const ButtonClick& act) const { return Click(sim, act.button); }
    Refusal operator()(const MenuChoice& act) const { return Choose(sim, act.item); }
    Refusal operator()(const LabelClick& act) const { return ClickLabel(sim, act.label); }
    Refusal operator()(const TimerTick& act) const { return Tick(sim, act.timer); }
    Refusal operator()(const Activation& act) const { return ActivateByUser(sim, act.window); }
    Refusal operator()(const Closing& act) const { return CloseByUser(sim, act.window); }
    Refusal operator()(const TopicClick& act) const { return ClickTopic(sim, act.topic); }
    Refusal operator()(const AboutClick& act) const { return ClickAbout(sim, act.control); }

    Refusal operator()(const ClockSetting& act) const
    {
        platform.now = act.time;
        return std::nullopt;
    }

    Refusal operator()(const DocumentChange& act) const
    {
        if (act.present)
            platform.missing.erase(act.name);
        else
            platform.missing.insert(act.name);
        return std::nullopt;
    }
};

} // namespace

Refusal Player::Do(const Action& action)
{
    stage_.sim.now = stage_.platform.now;
    Refusal refusal = std::visit(Doer{stage_.sim, stage_.platform}, action);
    CarryOut(stage_.sim, stage_.platform);
    return refusal;
}

Dump Player::Take(Calls calls) const
{
    Dump dump = RecordsOf(stage_.sim);
    AddStrokes(dump, kPicSelvane.name, stage_.sim.picSelvane.drawing, calls);
    AddStrokes(dump, kPicDemo.name, stage_.sim.picDemo.drawing, calls);
    AddPlatform(dump, stage_.platform);
    return dump;
}

} // namespace selvane::replay
