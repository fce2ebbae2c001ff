#include "qt/picture_widget.h"

#include "qt/appearance.h"

#include <QAccessible>
#include <QPaintEvent>
#include <QPainter>

namespace selvane {

PictureWidget::PictureWidget(const PictureRow& row, QWidget* parent)
    : QWidget(parent), painter_(row.place.width, row.place.height, row.background)
{
    setObjectName(TextOf(row.name));
    setGeometry(RectOf(row.place));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureWidget::Show(const raster::Drawing& drawing)
{
    const auto [across, down] = painter_.Paint(drawing, texts_);
    if (across.IsEmpty() || down.IsEmpty()) return;
    const double scale = painter_.Scale();
    const QRectF changed(QPointF(across.first, down.first) / scale,
                         QPointF(across.end, down.end) / scale);
    update(QRegion(changed.toAlignedRect()) - covered_);
}

void PictureWidget::AnnounceWords()
{
    if (!QAccessible::isActive() || announced_ == Spoken()) return;
    announced_ = Spoken();
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

QImage PictureWidget::Image() const
{
    QImage image(reinterpret_cast<const uchar*>(painter_.Pixels()), painter_.Width(),
                 painter_.Height(), painter_.Width() * static_cast<int>(sizeof(raster::Pixel)),
                 QImage::Format_RGB32);
    image.setDevicePixelRatio(painter_.Scale());
    return image;
}

void PictureWidget::paintEvent(QPaintEvent* event)
{
    painter_.SetScale(devicePixelRatioF(), texts_);
    const QImage picture = Image();
    QPainter painter(this);
    // Within a rectangle the toolkit copies; any other shape is filled by several threads.
    for (const QRect& part : event->region()) {
        painter.setClipRect(part);
        painter.drawImage(0, 0, picture);
    }
}

} // namespace selvane
