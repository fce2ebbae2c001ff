#include "qt/number_line.h"

#include "qt/appearance.h"
#include "qt/focus_frame.h"

#include <QPainter>

namespace selvane {

NumberLine::NumberLine(QWidget* parent) : QLineEdit(parent)
{
    setFrame(false); // the style's frame leaves too little room for the text
    setFont(FontOf(kTextPoints));
}

void NumberLine::SetFault(const QString& why)
{
    QPalette colours;
    if (!why.isEmpty()) colours.setColor(QPalette::Text, kFaultColour);
    setPalette(colours);
    setToolTip(why);
}

void NumberLine::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (hasFocus()) {
        DrawFocusFrame(*this);
        return;
    }
    QPainter painter(this);
    painter.setPen(kFrameColour);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace selvane
