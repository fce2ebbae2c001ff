#include "qt/dispatch.h"

#include "program/program.h"

#include <utility>

namespace selvane {

void Dispatch::Act(WindowId window, Event event)
{
    after_ = After::Actions;
    Enter([window, event = std::move(event)](Simulation& sim) {
        if (!IsActive(sim, window)) ActivateByUser(sim, window);
        event(sim);
    });
}

void Dispatch::Tick(TimerId timer)
{
    Enter([timer](Simulation& sim) { selvane::Tick(sim, timer); });
}

void Dispatch::Report(Event event)
{
    after_ = After::Actions;
    Enter(std::move(event));
}

void Dispatch::Enter(Event event)
{
    waiting_.push_back(std::move(event));
    if (busy_) return;
    busy_ = true;
    // Making the screen match can bring in further events, such as a window that becomes active.
    while (!waiting_.empty()) RunWaiting();
    busy_ = false;
}

void Dispatch::RunWaiting()
{
    while (!waiting_.empty()) {
        const Event event = std::move(waiting_.front());
        waiting_.pop_front();
        sim_.now = platform_.Now();
        event(sim_);
        CarryOut(sim_, platform_);
    }
    emit settled(std::exchange(after_, After::TicksOnly));
}

} // namespace selvane
