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

// Makes a window no larger than its screen has room for, and moves it so that all of it is seen.
void KeepOnScreen(QWidget& window)
{
    const QRect room = window.screen()->availableGeometry();
    const QSize borders = window.frameGeometry().size() - window.size();
    const QSize outer = window.frameGeometry().size().boundedTo(room.size());
    window.resize(outer - borders);
    const QPoint at = window.pos();
    window.move(std::clamp(at.x(), room.left(), room.right() + 1 - outer.width()),
                std::clamp(at.y(), room.top(), room.bottom() + 1 - outer.height()));
}

} // namespace

WindowKeeper::WindowKeeper(Dispatch& door, QWidget& mainWindow) : door_(door), main_(mainWindow)
{
    main_.installEventFilter(this);
}

WindowKeeper::~WindowKeeper() = default;

QWidget* WindowKeeper::Widget(WindowId window) const
{
    return window == WindowId::Main ? &main_
                                    : secondary_[static_cast<std::size_t>(window)].widget.get();
}

void WindowKeeper::Match(const Simulation& sim)
{
    const bool guideClosed = MatchSecondary(sim, WindowId::UserGuide);
    const bool aboutClosed = MatchSecondary(sim, WindowId::About);
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
bool WindowKeeper::MatchSecondary(const Simulation& sim, WindowId window)
{
    const Secondary& shown = secondary_[static_cast<std::size_t>(window)];
    const bool wasOpen = shown.widget != nullptr;
    const bool isOpen = IsLoaded(sim, window);
    if (isOpen && !wasOpen) Open(window);
    if (!isOpen && wasOpen) Drop(window);
    if (shown.widget) shown.mirror(sim);
    return wasOpen && !isOpen;
}

void WindowKeeper::Open(WindowId window)
{
    Secondary& made = secondary_[static_cast<std::size_t>(window)];
    const auto take = [&made](auto widget) {
        made.mirror = [raw = widget.get()](const Simulation& sim) { raw->Mirror(sim); };
        made.widget = std::move(widget);
    };
    if (window == WindowId::UserGuide)
        take(std::make_unique<UserGuideFrame>(door_));
    else
        take(std::make_unique<AboutFrame>(door_));
    made.frameKnown = false;
    made.widget->installEventFilter(this);
    KeepOnScreen(*made.widget);
}

// The desktop's frame is known once the window is active.
void WindowKeeper::KeepFrameOnScreen(WindowId window)
{
    Secondary& shown = secondary_[static_cast<std::size_t>(window)];
    if (!shown.widget || shown.frameKnown) return;
    shown.frameKnown = true;
    KeepOnScreen(*shown.widget);
}

// The window may be in the middle of one of its own events.
void WindowKeeper::Drop(WindowId window)
{
    Secondary& shown = secondary_[static_cast<std::size_t>(window)];
    shown.widget->removeEventFilter(this);
    shown.widget->hide();
    shown.widget.release()->deleteLater();
    shown.mirror = nullptr;
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
    if (IsActive(door_.Sim(), window)) return;
    door_.Report([window](Simulation& sim) { ActivateByUser(sim, window); });
}

bool WindowKeeper::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = QObject::eventFilter(watched, event);
    const std::optional<WindowId> window = Which(watched);
    if (window && event->type() == QEvent::WindowActivate) {
        KeepFrameOnScreen(*window);
        TellActivated(*window);
    }
    if (window && event->type() == QEvent::Close)
        door_.Report([id = *window](Simulation& sim) { CloseByUser(sim, id); });
    return handled;
}

std::optional<WindowId> WindowKeeper::Which(const QObject* widget) const
{
    for (const WindowId window : {WindowId::Main, WindowId::UserGuide, WindowId::About})
        if (widget == Widget(window)) return window;
    return std::nullopt;
}

} // namespace selvane
