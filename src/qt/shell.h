// Shell: the program on the screen. It ties the simulation to its window, timers and further
// windows.
#pragma once

#include "app/simulation.h"
#include "qt/dispatch.h"
#include "qt/main_window.h"
#include "qt/painted_simulation.h"
#include "qt/timers.h"
#include "qt/window_keeper.h"

#include <QTimer>
#include <memory>

namespace selvane {

class Shell : public QObject
{
    Q_OBJECT

public:
    // What the window has when it first comes up: all of its controls, or only the main picture
    // without its words, which needs no fonts. The rest follows at once.
    enum class Opens { Whole, PictureFirst };

    // Needs the application object. The platform outlives the shell.
    explicit Shell(Platform& platform);
    Shell(std::unique_ptr<PaintedSimulation> painted, Opens opens);

    void Show();

    const Simulation& Sim() const { return painted_->sim; }
    Dispatch& Door() { return door_; }
    MainWindow& Window() { return window_; }
    Timers& Clockwork() { return timers_; }
    WindowKeeper& Windows() { return keeper_; }

    // What every event ends with: the screen is made to match the records.
    void Match(Dispatch::After after);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Furnish();
    void Complete();

    const std::unique_ptr<PaintedSimulation> painted_;
    Dispatch door_;
    MainWindow window_;
    Timers timers_;
    WindowKeeper keeper_;
    QTimer completion_;
};

} // namespace selvane
