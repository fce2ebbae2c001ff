// PictureWidget: shows what is drawn on a surface.
#pragma once

#include "qt/picture_surface.h"

#include <QRegion>
#include <QWidget>

namespace selvane {

class PictureWidget : public QWidget
{
    Q_OBJECT

public:
    // The surface outlives it.
    PictureWidget(PictureSurface& surface, const PictureRow& row, QWidget* parent);

    // Opaque controls that lie over the picture: a new frame leaves them alone.
    void SetCovered(const QRegion& covered) { covered_ = covered; }

    // Shows a new frame, once, if there is one.
    void ShowFrame();

    // Draws at the resolution of the screen that the widget is on.
    void MatchScreen();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PictureSurface& surface_;
    QRegion covered_;
};

} // namespace selvane
