#include "window_player.h"

#include "documents/about_box.h"
#include "documents/user_guide.h"
#include "program/program.h"
#include "qt/appearance.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QWheelEvent>
#include <QtTest/QTest>
#include <algorithm>

namespace selvane {

namespace {

void Settle()
{
    for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
}

void BringToFront(QWidget& window)
{
    window.activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(&window, 1000));
    Settle(); // its control with the focus hears of it later
}

QRect PartOf(const QScrollBar& bar, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = option.sliderValue = bar.value();
    option.singleStep = bar.singleStep();
    option.pageStep = bar.pageStep();
    option.subControls = QStyle::SC_All;
    if (bar.orientation() == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

void ClickPart(QScrollBar& bar, QStyle::SubControl part)
{
    QTest::mouseClick(&bar, Qt::LeftButton, {}, PartOf(bar, part).center());
}

bool HasRoomForAThumb(const QScrollBar& bar)
{
    return std::max(bar.width(), bar.height()) >= 60;
}

// Takes the thumb to an end of the bar and lets it go there. Between the arrows of a short bar is
// no room for a thumb: there the keys do it.
void DragToEnd(QScrollBar& bar, bool toMaximum)
{
    if (!HasRoomForAThumb(bar)) {
        bar.setFocus();
        QTest::keyClick(&bar, toMaximum ? Qt::Key_End : Qt::Key_Home);
        return;
    }
    const QPoint thumb = PartOf(bar, QStyle::SC_ScrollBarSlider).center();
    const int end = toMaximum ? std::max(bar.width(), bar.height()) : 0;
    const bool across = bar.orientation() == Qt::Horizontal;
    const QPoint goal = across ? QPoint(end, thumb.y()) : QPoint(thumb.x(), end);
    QTest::mousePress(&bar, Qt::LeftButton, {}, thumb);
    QTest::mouseMove(&bar, goal);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, goal);
}

// A pixel of the groove stands for many values, so that a mouse reaches few of them: the thumb is
// held, set to the value and let go.
void DragTo(QScrollBar& bar, int value)
{
    bar.setSliderDown(true);
    bar.setSliderPosition(value);
    bar.setSliderDown(false);
}

bool CanBeTyped(const QString& text)
{
    return text.size() < 40 &&
           std::ranges::all_of(text, [](QChar sign) { return sign >= u' ' && sign <= u'~'; });
}

} // namespace

// One action or gesture each, done by hand.
struct WindowPlayer::Hand
{
    Shell& shell;
    replay::ScriptedPlatform& platform;

    bool IsActive(WindowId window) const { return selvane::IsActive(shell.Sim(), window); }

    // The control of that name in a window, if the user can get at it.
    template <typename Widget> Widget* Reach(WindowId window, std::string_view name) const
    {
        QWidget* const top = IsActive(window) ? shell.Windows().Widget(window) : nullptr;
        Widget* const control = top ? top->findChild<Widget*>(TextOf(name)) : nullptr;
        if (!control || !control->isVisible()) return nullptr;
        if (auto* const area = top->findChild<QScrollArea*>("area"))
            area->ensureWidgetVisible(control); // a small window shows a part
        return control;
    }
    QScrollBar* Reach(ScrollBarId bar) const
    {
        return Reach<QScrollBar>(WindowId::Main, ScrollBarTable()[Index(bar)].name);
    }
    // The field, with the focus and all of its text marked, if the user can get at it.
    QLineEdit* Marked(FieldId id) const
    {
        auto* const field = Reach<QLineEdit>(WindowId::Main, FieldTable()[Index(id)].name);
        if (!field) return nullptr;
        QTest::mouseDClick(field, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        return field;
    }
    static void Paste(QLineEdit& field, const QString& text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    }
    void Press(WindowId window, std::string_view name) const
    {
        if (auto* const control = Reach<QWidget>(window, name))
            QTest::mouseClick(control, Qt::LeftButton);
    }

    void operator()(const replay::ScrollTo& act) const
    {
        QScrollBar* const bar = Reach(act.bar);
        if (!bar) return;
        if (act.value <= bar->minimum() || act.value >= bar->maximum())
            DragToEnd(*bar, act.value >= bar->maximum());
        else
            DragTo(*bar, act.value);
    }

    void operator()(const replay::ArrowClick& act) const
    {
        if (QScrollBar* const bar = Reach(act.bar))
            ClickPart(*bar, act.direction > 0 ? QStyle::SC_ScrollBarAddLine
                                              : QStyle::SC_ScrollBarSubLine);
    }

    void operator()(const replay::PageClick& act) const
    {
        QScrollBar* const bar = Reach(act.bar);
        if (!bar) return;
        const auto side =
            act.direction > 0 ? QStyle::SC_ScrollBarAddPage : QStyle::SC_ScrollBarSubPage;
        if (PartOf(*bar, side).isValid()) {
            ClickPart(*bar, side);
            return;
        }
        bar->setFocus(); // no room left beside the thumb
        QTest::keyClick(bar, act.direction > 0 ? Qt::Key_PageDown : Qt::Key_PageUp);
    }

    void operator()(const replay::TypeText& act) const
    {
        const QString text = QString::fromStdString(act.text);
        if (QLineEdit* const field = Marked(act.field)) {
            QTest::keyClick(field, Qt::Key_Delete);
            if (CanBeTyped(text))
                QTest::keyClicks(field, text);
            else
                Paste(*field, text);
        }
    }

    void operator()(const replay::ButtonClick& act) const
    {
        Press(WindowId::Main, ButtonTable()[Index(act.button)].name);
    }

    void operator()(const replay::MenuChoice& act) const
    {
        const MenuRow& row = MenuTable()[Index(act.item)];
        if (!IsActive(WindowId::Main) || !row.under || row.caption.empty()) return;
        const auto action = [this](std::string_view name) {
            return shell.Window().findChild<QAction*>(TextOf(name));
        };
        QAction* const title = action(MenuTable()[Index(*row.under)].name);
        QMenuBar* const bar = shell.Window().menuBar();
        if (bar->width() < bar->sizeHint().width()) { // a small window hides some titles
            shell.Window().resize(kClientWidth, shell.Window().height());
            Settle();
        }
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(title).center());
        QMenu* const menu = title->menu();
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(action(row.name)).center());
    }

    void operator()(const replay::LabelClick& act) const
    {
        Press(WindowId::Main, LabelTable()[Index(act.label)].name);
    }
    void operator()(const replay::TimerTick& act) const { shell.Dispatcher().Tick(act.timer); }

    void operator()(const replay::Activation& act) const
    {
        if (QWidget* const window = shell.Windows().Widget(act.window)) BringToFront(*window);
    }

    void operator()(const replay::Closing& act) const
    {
        if (QWidget* const window = shell.Windows().Widget(act.window)) window->close();
    }

    void operator()(const replay::TopicClick& act) const
    {
        Press(WindowId::UserGuide, TopicTable()[static_cast<std::size_t>(act.topic)].name);
    }
    void operator()(const replay::AboutClick& act) const
    {
        Press(WindowId::About, AboutTable()[static_cast<std::size_t>(act.control)].name);
    }
    void operator()(const replay::ClockSetting& act) const { platform.now = act.time; }

    void operator()(const replay::DocumentChange& act) const
    {
        if (act.present)
            platform.missing.erase(act.name);
        else
            platform.missing.insert(act.name);
    }
};

// Each says which action it comes to.
struct WindowPlayer::GestureHand
{
    Hand hand;
    using Meaning = std::optional<replay::Action>;

    Meaning operator()(const replay::Action& act) const
    {
        std::visit(hand, act);
        return act;
    }

    Meaning operator()(const WheelTurn& turn) const
    {
        QScrollBar* const bar = hand.Reach(turn.bar);
        if (!bar) return std::nullopt;
        bar->setFocus();
        if (!bar->hasFocus()) BringToFront(*bar->window());
        const int goal = bar->value() - turn.notches * bar->singleStep();
        const QPointF place = bar->rect().center();
        QWheelEvent event(place, bar->mapToGlobal(place), {},
                          {0, turn.notches * QWheelEvent::DefaultDeltasPerStep}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(bar, &event);
        return replay::ScrollTo{turn.bar, goal};
    }

    Meaning operator()(const ThumbDrag& drag) const
    {
        QScrollBar* const bar = hand.Reach(drag.bar);
        if (!bar || !HasRoomForAThumb(*bar)) return std::nullopt;
        const QPoint thumb = PartOf(*bar, QStyle::SC_ScrollBarSlider).center();
        const bool across = bar->orientation() == Qt::Horizontal;
        QTest::mousePress(bar, Qt::LeftButton, {}, thumb);
        QPoint goal = thumb;
        for (const int part : {3, 2, 1}) {
            goal = thumb + (across ? QPoint(drag.pixels, 0) : QPoint(0, drag.pixels)) / part;
            QTest::mouseMove(bar, goal);
        }
        const int let = bar->sliderPosition();
        QTest::mouseRelease(bar, Qt::LeftButton, {}, goal);
        return replay::ScrollTo{drag.bar, let};
    }

    Meaning operator()(const Pasting& act) const
    {
        QLineEdit* const field = hand.Marked(act.field);
        if (!field) return std::nullopt;
        Hand::Paste(*field, QString::fromStdString(act.text));
        return replay::TypeText{act.field, act.text};
    }

    Meaning operator()(const Resizing& act) const
    {
        hand.shell.Window().resize(act.width, act.height);
        return std::nullopt;
    }

    Meaning operator()(const Leaving&) const
    {
        QWidget other;
        other.show();
        BringToFront(other);
        BringToFront(*hand.shell.Windows().Widget(hand.shell.Sim().windows.order.back()));
        return std::nullopt;
    }
};

WindowPlayer::WindowPlayer() : shell_(platform_)
{
    shell_.EventTimers().StandStill();
    for (QObject* const object : shell_.Window().findChildren<QObject*>())
        named_.emplace(object->objectName().toStdString(), object);
    shell_.Show();
    BringToFront(shell_.Window());
    Settle();
}

template <typename Object> Object* WindowPlayer::Find(std::string_view name) const
{
    const auto found = named_.find(name);
    return found == named_.end() ? nullptr : qobject_cast<Object*>(found->second);
}

std::optional<replay::Action> WindowPlayer::Do(const Gesture& gesture)
{
    if (!shell_.Sim().windows.running) return std::nullopt;
    const auto meaning = std::visit(GestureHand{{shell_, platform_}}, gesture);
    Settle();
    return meaning;
}

replay::Dump WindowPlayer::Take() const
{
    replay::Dump dump = replay::RecordsOf(shell_.Sim());
    replay::AddPlatform(dump, platform_);
    return dump;
}

std::string WindowPlayer::Disagreement(const Simulation& sim)
{
    if (!sim.windows.running) return "";
    const auto shown = [this](std::string_view name, bool visible) {
        const auto* const control = Find<QWidget>(name);
        return control && control->isHidden() != visible;
    };
    for (const ScrollBarRow& row : ScrollBarTable()) {
        const ScrollBar& record = sim.controls.scrollBars[Index(row.id)];
        const auto* const bar = Find<QScrollBar>(row.name);
        if (bar->value() != record.value || bar->minimum() != record.min ||
            bar->maximum() != record.max || bar->singleStep() != record.smallChange ||
            bar->pageStep() != record.largeChange || !shown(row.name, record.visible))
            return std::string(row.name);
    }
    for (const FieldRow& row : FieldTable()) {
        const NumberField& record = sim.controls.fields[Index(row.id)];
        const auto* const field = Find<QLineEdit>(row.name);
        if (field->text().toStdString() != record.text || !shown(row.name, record.visible))
            return std::string(row.name);
    }
    for (const ButtonRow& row : ButtonTable())
        if (!shown(row.name, sim.controls.buttons[Index(row.id)].visible))
            return std::string(row.name);
    for (const LabelRow& row : LabelTable()) {
        const Label& record = sim.controls.labels[Index(row.id)];
        const auto* const label = Find<QWidget>(row.name);
        if (label->property("text").toString().toStdString() != record.caption ||
            label->toolTip().toStdString() != record.toolTip || !shown(row.name, record.visible))
            return std::string(row.name);
    }
    for (const MenuRow& row : MenuTable())
        if (row.checkable &&
            Find<QAction>(row.name)->isChecked() != sim.controls.menu[Index(row.id)].checked)
            return std::string(row.name);
    if (Find<QWidget>("panel")->size() != QSize(kClientWidth, kClientHeight))
        return "the layout's size";
    for (const WindowId each : {WindowId::UserGuide, WindowId::About})
        if (IsLoaded(sim, each) != (shell_.Windows().Widget(each) != nullptr))
            return "a window that should or should not be there";
    const Marker& marker = sim.controls.lblSat;
    if (!shown("lblSat", marker.visible && marker.left.has_value())) return "lblSat";
    return "";
}

} // namespace selvane
