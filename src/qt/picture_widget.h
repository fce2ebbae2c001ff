// PictureWidget: a picture of the program on the screen, painted at the screen's own resolution.
#pragma once

#include "app/control_table.h"
#include "program/spoken_text.h"
#include "qt/text_masks.h"
#include "raster/painter.h"

#include <QImage>
#include <QRegion>
#include <QWidget>
#include <functional>

namespace selvane {

class PictureWidget : public QWidget
{
    Q_OBJECT

public:
    PictureWidget(const PictureRow& row, QWidget* parent);

    // Opaque controls that lie over the picture: a new frame leaves them alone.
    void SetCovered(const QRegion& covered) { covered_ = covered; }

    // What the picture shows, in words, worked out when it is asked for.
    void SetWords(std::function<SpokenText()> words) { words_ = std::move(words); }
    SpokenText Spoken() const { return words_ ? words_() : SpokenText(); }

    // Announces what it shows, where that is not what was announced last.
    void AnnounceWords();

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
    std::function<SpokenText()> words_;
    SpokenText announced_;
};

} // namespace selvane
