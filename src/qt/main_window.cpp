#include "qt/main_window.h"

#include "program/program.h"
#include "qt/appearance.h"
#include "qt/dispatch.h"
#include "qt/menus.h"
#include "qt/picture_widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <algorithm>

namespace selvane {

namespace {

constexpr int kMenuBarHeight = 20; // pixels; a line of text with its margins

// The toolkit's own hint is measured in letters, and fonts are not there yet.
class PanelArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override { return {kClientWidth, kClientHeight}; }
};

} // namespace

MainWindow::MainWindow(Dispatch& dispatcher) : area_(new PanelArea(this))
{
    setObjectName(TextOf(kApplicationTitle));
    setWindowTitle(TextOf(kApplicationTitle));
    setContextMenuPolicy(Qt::NoContextMenu);
    BuildPanel(dispatcher);
    AddShortcuts(dispatcher);
    FitToScreen();
}

void MainWindow::BuildPanel(Dispatch& dispatcher)
{
    auto* const panel = new QWidget;
    panel->setObjectName("panel");
    panel->setFixedSize(kClientWidth, kClientHeight);
    auto* const bar = new MenuBar;
    bar->setFixedHeight(kMenuBarHeight);
    widgets_ = BuildControls(*panel, *bar, dispatcher);
    setMenuBar(bar);
    mirror_ = std::make_unique<ControlMirror>(widgets_);

    area_->setObjectName("area");
    area_->setWidget(panel);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus); // a click beside the controls takes no field's focus
    setCentralWidget(area_);
    connect(qApp, &QApplication::focusChanged, this, [this, panel](QWidget*, QWidget* now) {
        if (now && panel->isAncestorOf(now)) ScrollTo(*now);
    });
}

void MainWindow::Match(const Simulation& sim)
{
    mirror_->Pass(sim);
}

// All of the control, not only its caret.
void MainWindow::ScrollTo(const QWidget& control)
{
    constexpr int kMargin = 8;
    const QRect box(control.mapTo(area_->widget(), QPoint()), control.size());
    const QPoint middle = box.center();
    area_->ensureVisible(middle.x(), middle.y(), box.width() / 2 + kMargin,
                         box.height() / 2 + kMargin);
}

void MainWindow::AddShortcuts(Dispatch& dispatcher)
{
    auto* const help = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(help, &QShortcut::activated, &dispatcher, [&dispatcher] {
        dispatcher.Act(WindowId::Main, [](Simulation& sim) { Choose(sim, mnUserGuide); });
    });
    auto* const menu = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(menu, &QShortcut::activated, this, &MainWindow::ActivateMenuBar);
}

// As Alt alone does: no menu opens, so that the next letter is an access key of the bar. A menu
// that is opened, be it the empty first one, would take the letter for one of its own items.
void MainWindow::ActivateMenuBar()
{
    QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
    for (QKeyEvent* const event : {&press, &release}) QCoreApplication::sendEvent(this, event);
}

void MainWindow::AnnouncePictures()
{
    widgets_.picSelvane->AnnounceWords();
    widgets_.picDemo->AnnounceWords();
}

void MainWindow::FitToScreen()
{
    const QRect available = screen()->availableGeometry();
    const QSize borders = frameGeometry().size() - geometry().size();
    QSize needed(kClientWidth, kClientHeight + kMenuBarHeight);
    needed += borders;
    // A scroll bar that comes for want of height would take its share of the width.
    if (needed.height() > available.height())
        needed.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize outer = QSize(kWindowOuter.width, kWindowOuter.height).expandedTo(needed);
    resize(outer.boundedTo(available.size()) - borders);
    move(std::max(kWindowOuter.left, available.left()),
         std::max(kWindowOuter.top, available.top()));
}

bool MainWindow::event(QEvent* event)
{
    // The desktop's frame is known once the window is active.
    if (event->type() == QEvent::WindowActivate && !frameKnown_) {
        frameKnown_ = true;
        FitToScreen();
    }
    return QMainWindow::event(event);
}

} // namespace selvane
