// The program's four timers as the toolkit's, touched only where interval or state differ, so that
// a tick that changes neither keeps the beat.
#pragma once

#include "app/controls.h"

#include <QTimer>
#include <array>

namespace selvane {

class Dispatch;

class Timers : public QObject
{
    Q_OBJECT

public:
    explicit Timers(Dispatch& dispatcher);

    void Match(const std::array<Timer, kTimerCount>& records);

    // Nothing moves while nobody can see it. The clock of the tutorial goes on.
    void SetWatched(bool watched);

    // For tests and pictures that make each tick themselves: the timers count but never fire.
    void StandStill();

private:
    bool MayRun(TimerId timer) const;

    Dispatch& dispatcher_;
    std::array<QTimer, kTimerCount> timers_;
    bool watched_ = true;
    bool still_ = false;
};

} // namespace selvane
