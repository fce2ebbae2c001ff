// ValueBar: a scroll bar that holds a value. A drag counts when the thumb is let go; arrows, keys
// and the wheel count at once.
#pragma once

#include <QScrollBar>

namespace selvane {

// Right and Down raise the value, Left and Up lower it, whichever way the bar stands; Page keys do
// the same by the large change. The wheel turns a bar that has the focus and no other.
class ValueBar : public QScrollBar
{
public:
    ValueBar(Qt::Orientation orientation, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int wheelTurn_ = 0; // eighths of a degree that make no whole notch yet
};

} // namespace selvane
