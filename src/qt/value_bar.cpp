#include "qt/value_bar.h"

#include "qt/focus_frame.h"

#include <QKeyEvent>
#include <QWheelEvent>
#include <cmath>

namespace selvane {

namespace {

QAbstractSlider::SliderAction ActionOf(int key)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_Left:
    case Qt::Key_Up:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return QAbstractSlider::SliderNoAction;
    }
}

} // namespace

ValueBar::ValueBar(Qt::Orientation orientation, QWidget* parent) : QScrollBar(orientation, parent)
{
    setTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::NoContextMenu); // the toolkit's menu is about pages of a text
}

void ValueBar::keyPressEvent(QKeyEvent* event)
{
    const SliderAction action = ActionOf(event->key());
    if (action == SliderNoAction)
        event->ignore();
    else
        triggerAction(action);
}

void ValueBar::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    const QPoint turn = event->angleDelta();
    wheelTurn_ += std::abs(turn.x()) > std::abs(turn.y()) ? turn.x() : turn.y();
    const int notches = wheelTurn_ / QWheelEvent::DefaultDeltasPerStep;
    wheelTurn_ %= QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) setValue(value() - notches * singleStep());
    event->accept();
}

void ValueBar::paintEvent(QPaintEvent* event)
{
    QScrollBar::paintEvent(event);
    if (hasFocus()) DrawFocusFrame(*this);
}

} // namespace selvane
