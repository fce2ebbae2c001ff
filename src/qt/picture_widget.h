// PictureWidget: a picture of the program on the screen, painted at the screen's own resolution.
#pragma once

#include "app/control_table.h"
#include "qt/text_masks.h"
#include "raster/painter.h"

#include <QImage>
#include <QRegion>
#include <QWidget>

namespace selvane {

class PictureWidget : public QWidget
{
    Q_OBJECT

public:
    PictureWidget(const PictureRow& row, QWidget* parent);

    // Opaque controls that lie over the picture: a new frame leaves them alone.
    void SetCovered(const QRegion& covered) { covered_ = covered; }

    // Paints the drawing, and shows again what has changed.
    void Show(const raster::Drawing& drawing);

    // What it shows, in device pixels; valid until it changes.
    QImage Image() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QtTextMasks texts_;
    raster::Painter painter_;
    QRegion covered_;
};

} // namespace selvane
