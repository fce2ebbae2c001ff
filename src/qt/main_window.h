// Selvane, the main window: a menu bar above the fixed layout, which scrolls where the screen is
// smaller.
#pragma once

#include "qt/control_mirror.h"

#include <QMainWindow>

class QScrollArea;

namespace selvane {

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // The door and the surfaces outlive the window. It has its menu bar and pictures alone.
    MainWindow(Dispatch& door, const Surfaces& surfaces);

    // Adds all other controls, once.
    void Furnish(Dispatch& door);
    bool IsFurnished() const { return mirror_ != nullptr; }

    // Does nothing before the window is furnished.
    void Match(const Simulation& sim);

    // What the pictures show, in words for a screen reader.
    void Describe(const Simulation& sim);

    // Draws the pictures at the resolution of the window's screen from now on.
    void MatchScreen();

    // The size as laid out, but no larger than the screen has room for.
    void FitToScreen();

protected:
    bool event(QEvent* event) override;

private:
    void BuildPanel(Dispatch& door, const Surfaces& surfaces);
    void AddShortcuts(Dispatch& door);
    void ActivateMenuBar();
    void ScrollTo(const QWidget& control);

    QScrollArea* area_;
    ControlWidgets widgets_;
    std::unique_ptr<ControlMirror> mirror_;
    bool frameKnown_ = false;
};

} // namespace selvane
