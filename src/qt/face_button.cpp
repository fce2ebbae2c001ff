#include "qt/face_button.h"

#include "qt/appearance.h"
#include "qt/focus_frame.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace selvane {

namespace {

constexpr double kGlyphWidth = 12, kGlyphHeight = 18;

void AddTriangle(QPainterPath& path, double base, double tip)
{
    path.moveTo(base, 0);
    path.lineTo(tip, kGlyphHeight / 2);
    path.lineTo(base, kGlyphHeight);
    path.closeSubpath();
}

// In a box of 12 x 18 with its corner at the origin.
QPainterPath PathOf(Glyph glyph)
{
    QPainterPath path;
    switch (glyph) {
    case Glyph::StepBack:
        path.addRect(0, 0, 3, kGlyphHeight);
        AddTriangle(path, kGlyphWidth, 3);
        break;
    case Glyph::Pause:
        path.addRect(0, 1, 4, 16);
        path.addRect(8, 1, 4, 16);
        break;
    case Glyph::Play:
        AddTriangle(path, 0, kGlyphWidth);
        break;
    case Glyph::StepForward:
        AddTriangle(path, 0, kGlyphWidth - 3);
        path.addRect(kGlyphWidth - 3, 0, 3, kGlyphHeight);
        break;
    case Glyph::None:
        break;
    }
    return path;
}

QColor FaceColour(const QPushButton& button)
{
    if (button.isDown()) return QColor(208, 208, 208);
    return button.underMouse() ? QColor(240, 246, 255) : QColor(Qt::white);
}

} // namespace

FaceButton::FaceButton(const ButtonRow& row, QWidget* parent)
    : QPushButton(TextOf(row.caption), parent), glyph_(row.glyph)
{
    constexpr double kCaptionPoints = 9.75;
    setFont(FontOf(kCaptionPoints));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

void FaceButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

void FaceButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(kFrameColour);
    painter.setBrush(text().isEmpty() && glyph_ == Glyph::None ? palette().button().color()
                                                               : FaceColour(*this));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));

    painter.setPen(palette().buttonText().color());
    painter.drawText(rect(), Qt::AlignCenter, text());

    constexpr double kBorder = 2; // above and below the picture
    const double shrink = std::min(1.0, (height() - kBorder) / kGlyphHeight);
    painter.save();
    painter.translate((width() - kGlyphWidth * shrink) / 2, (height() - kGlyphHeight * shrink) / 2);
    painter.scale(shrink, shrink);
    painter.fillPath(PathOf(glyph_), Qt::black);
    painter.restore();
    painter.end();
    if (hasFocus()) DrawFocusFrame(*this);
}

} // namespace selvane
