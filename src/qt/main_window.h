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
    // The door and the surface outlive the window. It has the main picture alone, and no text.
    MainWindow(Dispatch& door, PictureSurface& mainPicture);

    // Adds the menus and all other controls, once. The surface outlives the window.
    void Furnish(Dispatch& door, PictureSurface& tutorialPicture);
    bool IsFurnished() const { return mirror_ != nullptr; }

    // Does nothing before the window is furnished.
    void Match(const Simulation& sim);

    // What the pictures show, in words for a screen reader; likewise.
    void Describe(const Simulation& sim);

    // The size as laid out, but no larger than the screen has room for.
    void FitToScreen();

protected:
    bool event(QEvent* event) override;

private:
    void BuildPanel(Dispatch& door, PictureSurface& mainPicture);
    void AddShortcuts(Dispatch& door);
    void ActivateMenuBar();
    void ScrollTo(const QWidget& control);

    QScrollArea* area_;
    ControlWidgets widgets_;
    std::unique_ptr<ControlMirror> mirror_;
    bool frameKnown_ = false;
};

} // namespace selvane
