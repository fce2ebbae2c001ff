// Dispatch: brings the events of the window to the program. An event runs to its end, with what it
// asks of the machine, before the next one comes in; one that arrives meanwhile waits. When all are
// done the screen is made to match the records, once.
#pragma once

#include "app/control_ids.h"
#include "app/platform.h"
#include "app/windows.h"

#include <QObject>
#include <deque>
#include <functional>

namespace selvane {

class Dispatch : public QObject
{
    Q_OBJECT

public:
    using Event = std::function<void(Simulation&)>;

    // Both outlive it.
    Dispatch(Simulation& sim, Platform& platform) : sim_(sim), platform_(platform) {}

    // An action of the user in one of the windows. The window becomes the active one first, also
    // where the desktop has not said so.
    void Act(WindowId window, Event event);

    // A tick of a timer, or what the desktop reports.
    void Tick(TimerId timer);
    void Report(Event event);

    const Simulation& Sim() const { return sim_; }

    enum class After { TicksOnly, Actions };

signals:
    // The records are settled: make the screen match them.
    void settled(selvane::Dispatch::After after);

private:
    void Enter(Event event);
    void RunWaiting();

    Simulation& sim_;
    Platform& platform_;
    std::deque<Event> waiting_;
    After after_ = After::TicksOnly;
    bool busy_ = false;
};

} // namespace selvane
