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
    explicit MainWindow(Dispatch& dispatcher);

    void Match(const Simulation& sim);

    // Assistive technology hears of it where the pictures show something else.
    void AnnouncePictures();

    // The size as laid out, but no larger than the screen has room for.
    void FitToScreen();

protected:
    bool event(QEvent* event) override;

private:
    void BuildPanel(Dispatch& dispatcher);
    void AddShortcuts(Dispatch& dispatcher);
    void ActivateMenuBar();
    void ScrollTo(const QWidget& control);

    QScrollArea* area_;
    ControlWidgets widgets_;
    std::unique_ptr<ControlMirror> mirror_;
    bool frameKnown_ = false;
};

} // namespace selvane
