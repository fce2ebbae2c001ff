#include "qt/window_keeper.h"

#include "program/program.h"
#include "qt/about_window.h"
#include "qt/dispatch.h"
#include "qt/user_guide_window.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace selvane {

namespace {

// Makes a window no larger than its screen, and moves it so that all of it is seen.
void KeepOnScreen(QWidget& window)
{
    const QRect available = window.screen()->availableGeometry();
    const QSize borders = window.frameGeometry().size() - window.size();
    const QSize outer = window.frameGeometry().size().boundedTo(available.size());
    window.resize(outer - borders);
    const QPoint at = window.pos();
    window.move(std::clamp(at.x(), available.left(), available.right() + 1 - outer.width()),
                std::clamp(at.y(), available.top(), available.bottom() + 1 - outer.height()));
}

} // namespace

WindowKeeper::WindowKeeper(Dispatch& dispatcher, QWidget& mainWindow)
    : dispatcher_(dispatcher), main_(mainWindow)
{
    main_.installEventFilter(this);
}

WindowKeeper::~WindowKeeper() = default;

QWidget* WindowKeeper::Widget(WindowId window) const
{
    switch (window) {
    case WindowId::UserGuide:
        return guide_.widget.get();
    case WindowId::About:
        return about_.widget.get();
    case WindowId::Main:
        break;
    }
    return &main_;
}

void WindowKeeper::Match(const Simulation& sim)
{
    const bool guideClosed = MatchSecondary(guide_, IsLoaded(sim, WindowId::UserGuide), sim);
    const bool aboutClosed = MatchSecondary(about_, IsLoaded(sim, WindowId::About), sim);
    if (!sim.windows.running) {
        emit ended();
        return;
    }
    if (sim.windows.order.empty()) return;
    const WindowId active = sim.windows.order.back();
    const bool asked = raises_ != sim.windows.raises;
    // A window that closes while the user works in another program takes nobody's focus.
    const bool returned = (guideClosed || aboutClosed) && active != active_ &&
                          QGuiApplication::applicationState() == Qt::ApplicationActive;
    raises_ = sim.windows.raises;
    active_ = active;
    if (asked || returned) BringUp(active);
}

// True when it has just been closed.
template <typename Frame>
bool WindowKeeper::MatchSecondary(Secondary<Frame>& secondary, bool isOpen, const Simulation& sim)
{
    const bool wasOpen = secondary.widget != nullptr;
    if (isOpen && !wasOpen) Open(secondary);
    if (!isOpen && wasOpen) Close(secondary);
    if (secondary.widget) secondary.widget->Mirror(sim);
    return wasOpen && !isOpen;
}

template <typename Frame> void WindowKeeper::Open(Secondary<Frame>& secondary)
{
    secondary = {std::make_unique<Frame>(dispatcher_)};
    secondary.widget->installEventFilter(this);
    KeepOnScreen(*secondary.widget);
}

// The window may be in the middle of one of its own events.
template <typename Frame> void WindowKeeper::Close(Secondary<Frame>& secondary)
{
    secondary.widget->removeEventFilter(this);
    secondary.widget->hide();
    secondary.widget.release()->deleteLater();
}

// The desktop's frame is known once the window is active.
template <typename Frame> void WindowKeeper::KeepFrameOnScreen(Secondary<Frame>& secondary)
{
    if (!secondary.widget || secondary.frameKnown) return;
    secondary.frameKnown = true;
    KeepOnScreen(*secondary.widget);
}

void WindowKeeper::BringUp(WindowId window)
{
    QWidget& widget = *Widget(window);
    widget.setWindowState(widget.windowState() & ~Qt::WindowMinimized);
    widget.show();
    widget.raise();
    if (widget.isActiveWindow()) return;
    constexpr int kPatienceMs = 1000;
    expected_ = window;
    patience_.setRemainingTime(kPatienceMs);
    widget.activateWindow();
}

// While a window is on its way up, the desktop may still report the one below it, such as after a
// menu has closed.
void WindowKeeper::TellActivated(WindowId window)
{
    const bool waiting = expected_ && !patience_.hasExpired();
    if (waiting && *expected_ != window) return;
    expected_.reset();
    if (IsActive(dispatcher_.Sim(), window)) return;
    dispatcher_.Report([window](Simulation& sim) { ActivateByUser(sim, window); });
}

bool WindowKeeper::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = QObject::eventFilter(watched, event);
    const std::optional<WindowId> window = Which(watched);
    if (window && event->type() == QEvent::WindowActivate) {
        if (*window == WindowId::UserGuide) KeepFrameOnScreen(guide_);
        if (*window == WindowId::About) KeepFrameOnScreen(about_);
        TellActivated(*window);
    }
    if (window && event->type() == QEvent::Close)
        dispatcher_.Report([id = *window](Simulation& sim) { CloseByUser(sim, id); });
    return handled;
}

std::optional<WindowId> WindowKeeper::Which(const QObject* widget) const
{
    for (const WindowId window : {WindowId::Main, WindowId::UserGuide, WindowId::About})
        if (widget == Widget(window)) return window;
    return std::nullopt;
}

} // namespace selvane
