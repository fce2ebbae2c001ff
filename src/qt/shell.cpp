#include "qt/shell.h"

#include "program/program.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace selvane {

namespace {

Simulation Started(Platform& platform)
{
    Simulation sim;
    sim.now = platform.Now();
    LoadMainWindow(sim);
    ShowMainWindow(sim);
    CarryOut(sim, platform);
    return sim;
}

} // namespace

Shell::Shell(Platform& platform)
    : sim_(Started(platform)),
      dispatcher_(sim_, platform),
      window_(dispatcher_),
      timers_(dispatcher_),
      keeper_(dispatcher_, window_)
{
    connect(&dispatcher_, &Dispatch::settled, this, &Shell::Match);
    connect(&keeper_, &WindowKeeper::ended, qApp, &QCoreApplication::quit);
    window_.Match(Sim());
    window_.AnnouncePictures();
}

void Shell::Show()
{
    dispatcher_.Report([](Simulation&) {}); // timers and windows are made to match
    window_.show();
    window_.centralWidget()->setFocus(); // no control has it before the user's first Tab
    window_.windowHandle()->installEventFilter(this);
    window_.activateWindow(); // a desktop without a window manager activates nothing by itself
}

void Shell::Match(Dispatch::After after)
{
    window_.Match(Sim());
    if (after == Dispatch::After::Actions) window_.AnnouncePictures();
    timers_.Match(Sim().controls.timers);
    keeper_.Match(Sim());
}

bool Shell::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = QObject::eventFilter(watched, event);
    if (event->type() == QEvent::Expose) timers_.SetWatched(window_.windowHandle()->isExposed());
    return handled;
}

} // namespace selvane
