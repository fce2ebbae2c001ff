// WindowKeeper: opens, raises and closes the program's windows on the screen as the records say,
// and reports to the program which of them the user has made the active one or closed.
#pragma once

#include "app/windows.h"

#include <QDeadlineTimer>
#include <QObject>
#include <memory>
#include <optional>

class QWidget;

namespace selvane {

class AboutFrame;
class Dispatch;
class UserGuideFrame;

class WindowKeeper : public QObject
{
    Q_OBJECT

public:
    // The dispatcher and the main window outlive it.
    WindowKeeper(Dispatch& dispatcher, QWidget& mainWindow);
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
    template <typename Frame> struct Secondary
    {
        std::unique_ptr<Frame> widget; // null where it is not open
        bool frameKnown = false;
    };

    template <typename Frame>
    bool MatchSecondary(Secondary<Frame>& secondary, bool isOpen, const Simulation& sim);
    template <typename Frame> void Open(Secondary<Frame>& secondary);
    template <typename Frame> void Close(Secondary<Frame>& secondary);
    template <typename Frame> static void KeepFrameOnScreen(Secondary<Frame>& secondary);
    void BringUp(WindowId window);
    void TellActivated(WindowId window);
    std::optional<WindowId> Which(const QObject* widget) const;

    Dispatch& dispatcher_;
    QWidget& main_;
    Secondary<UserGuideFrame> guide_;
    Secondary<AboutFrame> about_;
    WindowId active_ = WindowId::Main;
    unsigned raises_ = 0;
    std::optional<WindowId> expected_; // asked of the desktop to be made the active one
    QDeadlineTimer patience_;          // how long it is waited for
};

} // namespace selvane
