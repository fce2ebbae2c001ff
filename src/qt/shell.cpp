#include "qt/shell.h"

#include "qt/application_icon.h"
#include "qt/heap.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace selvane {

Shell::Shell(Platform& platform)
    : Shell(std::make_unique<PaintedSimulation>(platform), Opens::Whole)
{}

Shell::Shell(std::unique_ptr<PaintedSimulation> painted, Opens opens)
    : painted_(std::move(painted)),
      door_(painted_->sim),
      window_(door_, painted_->picSelvane),
      timers_(door_),
      keeper_(door_, window_)
{
    connect(&door_, &Dispatch::settled, this, &Shell::Match);
    connect(&keeper_, &WindowKeeper::ended, qApp, &QCoreApplication::quit);
    connect(&completion_, &QTimer::timeout, this, &Shell::Complete);
    completion_.setSingleShot(true);
    if (opens == Opens::Whole) Furnish();
}

void Shell::Show()
{
    door_.Report([](Simulation&) {}); // the window is made to match what has been painted
    window_.show();
    window_.centralWidget()->setFocus(); // no control has it before the user's first Tab
    window_.windowHandle()->installEventFilter(this);
    window_.activateWindow(); // a desktop without a window manager activates nothing by itself
    constexpr int kPatienceMs = 250; // with a desktop that shows the window late or not at all
    completion_.start(window_.IsFurnished() ? 0 : kPatienceMs);
}

void Shell::Furnish()
{
    painted_->picSelvane.ReleaseText();
    window_.Furnish(door_, painted_->picDemo);
    window_.Match(Sim());
    window_.Describe(Sim());
}

void Shell::Complete()
{
    completion_.stop();
    if (!window_.IsFurnished()) Furnish();
    QTimer::singleShot(0, this, [] {
        QApplication::setWindowIcon(ApplicationIcon());
        ReturnFreeMemory(); // starting takes more than flying
    });
}

void Shell::Match(Dispatch::After after)
{
    window_.Match(Sim());
    if (after == Dispatch::After::Actions) window_.Describe(Sim());
    timers_.Match(Sim().controls.timers);
    keeper_.Match(Sim());
}

bool Shell::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = QObject::eventFilter(watched, event);
    if (event->type() == QEvent::Expose) {
        timers_.SetWatched(window_.windowHandle()->isExposed());
        if (!window_.IsFurnished()) completion_.start(0); // the window is painted by then
    }
    return handled;
}

} // namespace selvane
