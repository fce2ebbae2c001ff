// Shell: the program on the screen. It ties the simulation to its window, timers and further
// windows.
#pragma once

#include "app/simulation.h"
#include "qt/dispatch.h"
#include "qt/main_window.h"
#include "qt/timers.h"
#include "qt/window_keeper.h"

namespace selvane {

class Shell : public QObject
{
    Q_OBJECT

public:
    // Needs the application object. The platform outlives the shell.
    explicit Shell(Platform& platform);

    void Show();

    const Simulation& Sim() const { return sim_; }
    Dispatch& Dispatcher() { return dispatcher_; }
    MainWindow& Window() { return window_; }
    Timers& EventTimers() { return timers_; }
    WindowKeeper& Windows() { return keeper_; }

    // What every event ends with: the screen is made to match the records.
    void Match(Dispatch::After after);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Simulation sim_;
    Dispatch dispatcher_;
    MainWindow window_;
    Timers timers_;
    WindowKeeper keeper_;
};

} // namespace selvane
