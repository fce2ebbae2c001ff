// WindowKeeper: opens, raises and closes the program's windows on the screen as the records say,
// and tells the program which of them the user has made the active one or closed.
#pragma once

#include "app/windows.h"

#include <QDeadlineTimer>
#include <QObject>
#include <array>
#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace selvane {

class Dispatch;

class WindowKeeper : public QObject
{
    Q_OBJECT

public:
    // The door and the main window outlive it.
    WindowKeeper(Dispatch& door, QWidget& mainWindow);
    ~WindowKeeper() override;

    void Match(const Simulation& sim);

    // Null where that window is not open.
    QWidget* Widget(WindowId window) const;

signals:
    // The main window has been closed.
    void ended();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Secondary
    {
        std::unique_ptr<QWidget> widget;
        std::function<void(const Simulation&)> mirror;
        bool frameKnown = false;
    };

    bool MatchSecondary(const Simulation& sim, WindowId window);
    void Open(WindowId window);
    void Drop(WindowId window);
    void BringUp(WindowId window);
    void TellActivated(WindowId window);
    void KeepFrameOnScreen(WindowId window);
    std::optional<WindowId> Which(const QObject* widget) const;

    Dispatch& door_;
    QWidget& main_;
    std::array<Secondary, kWindowCount> secondary_; // empty for the main window
    WindowId active_ = WindowId::Main;
    unsigned raises_ = 0;
    std::optional<WindowId> expected_; // asked of the desktop to be made the active one
    QDeadlineTimer patience_;          // how long it is waited for
};

} // namespace selvane
