#include "qt/picture_widget.h"

#include "qt/appearance.h"

#include <QPaintEvent>
#include <QPainter>

namespace selvane {

PictureWidget::PictureWidget(PictureSurface& surface, const PictureRow& row, QWidget* parent)
    : QWidget(parent), surface_(surface)
{
    setObjectName(TextOf(row.name));
    setGeometry(RectOf(row.place));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureWidget::ShowFrame()
{
    const QRect changed = surface_.TakeChanged();
    if (!changed.isEmpty()) update(QRegion(changed) - covered_);
}

void PictureWidget::MatchScreen()
{
    surface_.SetDeviceScale(devicePixelRatioF());
}

void PictureWidget::paintEvent(QPaintEvent* event)
{
    MatchScreen();
    const QImage picture = surface_.Image();
    QPainter painter(this);
    // Within a rectangle the toolkit copies; any other shape is filled by several threads.
    for (const QRect& part : event->region()) {
        painter.setClipRect(part);
        painter.drawImage(0, 0, picture);
    }
}

} // namespace selvane
