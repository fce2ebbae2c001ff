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
    // The dispatcher outlives the window.
    explicit MainWindow(Dispatch& door);

    void Match(const Simulation& sim);

    // What the pictures show, in words for a screen reader.
    void Describe(const Simulation& sim);

    // The size as laid out, but no larger than the screen has room for.
    void FitToScreen();

protected:
    bool event(QEvent* event) override;

private:
    void BuildPanel(Dispatch& door);
    void AddShortcuts(Dispatch& door);
    void ActivateMenuBar();
    void ScrollTo(const QWidget& control);

    QScrollArea* area_;
    ControlWidgets widgets_;
    std::unique_ptr<ControlMirror> mirror_;
    bool frameKnown_ = false;
};

} // namespace selvane
