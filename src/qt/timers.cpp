#include "qt/timers.h"

#include "app/simulation.h"
#include "qt/appearance.h"
#include "qt/dispatch.h"

namespace selvane {

Timers::Timers(Dispatch& dispatcher) : dispatcher_(dispatcher)
{
    for (const TimerRow& row : TimerTable()) {
        QTimer& timer = timers_[Index(row.id)];
        timer.setParent(this);
        timer.setObjectName(TextOf(row.name));
        timer.setTimerType(Qt::PreciseTimer);
        timer.setInterval(row.intervalMs);
        connect(&timer, &QTimer::timeout, this, [this, id = row.id] { dispatcher_.Tick(id); });
    }
}

void Timers::Match(const std::array<Timer, kTimerCount>& records)
{
    for (std::size_t at = 0; at < kTimerCount; ++at) {
        QTimer& timer = timers_[at];
        if (timer.interval() != records[at].interval) timer.setInterval(records[at].interval);
        const bool runs = records[at].enabled && MayRun(static_cast<TimerId>(at));
        if (timer.isActive() == runs) continue;
        if (runs)
            timer.start();
        else
            timer.stop();
    }
}

void Timers::SetWatched(bool watched)
{
    if (watched_ == watched) return;
    watched_ = watched;
    Match(dispatcher_.Sim().controls.timers);
}

void Timers::StandStill()
{
    still_ = true;
    Match(dispatcher_.Sim().controls.timers);
}

bool Timers::MayRun(TimerId timer) const
{
    return !still_ && (watched_ || timer == tmrTime);
}

} // namespace selvane
