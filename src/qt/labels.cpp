#include "qt/labels.h"

#include "qt/appearance.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace selvane {

namespace {

Qt::Alignment AlignmentOf(Alignment alignment)
{
    switch (alignment) {
    case Alignment::Left:
        break;
    case Alignment::Centre:
        return Qt::AlignHCenter | Qt::AlignBottom;
    case Alignment::Right:
        return Qt::AlignRight | Qt::AlignTop;
    }
    return Qt::AlignLeft | Qt::AlignTop;
}

} // namespace

CaptionLabel::CaptionLabel(const LabelRow& row, QWidget* parent)
    : QLabel(parent), place_(row.place), room_(RoomOf(row.id)), alignment_(row.alignment)
{
    setTextFormat(Qt::PlainText);
    laidOut_.setCacheEnabled(true);
    setFont(FontOf(row.points, row.weight, row.underline));
    setAlignment(AlignmentOf(row.alignment));
    if (row.colour) {
        QPalette colours;
        colours.setColor(QPalette::WindowText, ColourOf(*row.colour));
        setPalette(colours);
    }
    setAutoFillBackground(row.backdrop == Backdrop::Window);
    SetCaption(TextOf(row.caption));
}

void CaptionLabel::SetCaption(const QString& caption)
{
    setText(caption);
    Fit();
}

// The text's width.
qreal CaptionLabel::LayOut(const QString& text)
{
    laidOut_.setFont(font());
    laidOut_.setText(text);
    laidOut_.beginLayout();
    const QTextLine line = laidOut_.createLine();
    laidOut_.endLayout();
    return line.isValid() ? line.horizontalAdvance() : 0;
}

void CaptionLabel::Fit()
{
    qreal width = LayOut(text());
    if (room_ && width > *room_)
        width = std::min<qreal>(LayOut(fontMetrics().elidedText(text(), Qt::ElideRight, *room_)),
                                *room_);
    const QSize needed(qRound(width) + 2, fontMetrics().height());
    QRect box = RectOf(place_);
    const int more = std::max(0, needed.width() - box.width());
    if (alignment_ == Alignment::Right) box.adjust(-more, 0, 0, 0);
    if (alignment_ == Alignment::Centre) box.adjust(-more / 2, 0, more - more / 2, 0);
    if (alignment_ == Alignment::Left) box.adjust(0, 0, more, 0);
    box.setHeight(std::max(box.height(), needed.height()));
    if (box != geometry()) setGeometry(box);
}

bool CaptionLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !IsElided()) return QLabel::event(event);
    constexpr qsizetype kLineLength = 80; // a tip of one line could be wider than the screen
    QString tip;
    for (qsizetype at = 0; at < text().size(); at += kLineLength)
        tip += text().mid(at, kLineLength) + '\n';
    tip += toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip.trimmed(), this);
    return true;
}

// The toolkit would lay the text out a second time.
void CaptionLabel::paintEvent(QPaintEvent* event)
{
    if (alignment_ != Alignment::Left || (text().contains('&') && !IsElided())) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    laidOut_.draw(&painter, {});
}

LinkLabel::LinkLabel(const QString& text, const Place& place, QWidget* parent)
    : QAbstractButton(parent)
{
    setText(text);
    setFont(FontOf(kTextPoints, Weight::Regular, Underline::Yes));
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setGeometry(QRect(QPoint(place.left, place.top),
                      sizeHint().expandedTo(QSize(place.width, place.height))));
}

QSize LinkLabel::sizeHint() const
{
    return fontMetrics().size(Qt::TextHideMnemonic, text()) + QSize(1, 0);
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void LinkLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (hasFocus()) painter.fillRect(rect(), kFocusFill); // a frame would cut into the text
    painter.setPen(isDown() ? kLinkColour.darker() : kLinkColour);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignTop, text());
}

bool LinkLabel::hitButton(const QPoint& at) const
{
    return rect().contains(at);
}

} // namespace selvane
