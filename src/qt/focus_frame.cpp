#include "qt/focus_frame.h"

#include "qt/appearance.h"

#include <QPainter>
#include <QWidget>

namespace selvane {

void DrawFocusFrame(QWidget& control)
{
    constexpr int kWidth = 2;
    QPainter painter(&control);
    const QRect all = control.rect();
    QRegion frame(all);
    frame -= all.adjusted(kWidth, kWidth, -kWidth, -kWidth);
    painter.setClipRegion(frame);
    painter.fillRect(all, kFocusColour);
}

} // namespace selvane
