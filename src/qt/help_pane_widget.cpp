#include "qt/help_pane_widget.h"

#include "app/controls.h"
#include "qt/accessibility.h"
#include "qt/appearance.h"
#include "qt/focus_frame.h"
#include "qt/rich_text_document.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <utility>

namespace selvane {

namespace {

constexpr int kSmallest = 50, kLargest = 300, kZoomStep = 10; // per cent
constexpr double kBasePoints = 9.75;
constexpr int kOutline = 2;        // pixels
constexpr int kPictureWidth = 352; // pixels: what a pane 400 wide leaves beside its bar and margins
constexpr int kWheelNotch = 120;   // eighths of a degree

} // namespace

HelpPaneWidget::HelpPaneWidget(QWidget* parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(kOutline);
    setFont(FontOf(kBasePoints));
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPaneWidget::Follow);
}

bool HelpPaneWidget::ShowPane(const HelpPane& pane)
{
    if (pane.text == text_ && pane.loads == loads_) return false;
    const QString before = toPlainText();
    text_ = pane.text;
    loads_ = pane.loads;
    MakeDocument();
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    AnnounceNewText(*this, before);
    return true;
}

void HelpPaneWidget::MakeDocument()
{
    const rich_text::Document empty;
    QTextDocument* const made =
        MakeTextDocument(text_ ? *text_ : empty, font(), zoomPercent_ / 100.0, kPictureWidth)
            .release();
    made->setParent(this);
    setDocument(made); // the one shown before is not deleted, as it is not the toolkit's own
    delete std::exchange(document_, made);
}

// Sizes stand in the text itself, so a zoom makes the document anew; what is read and what is
// selected stay.
void HelpPaneWidget::SetZoom(int percent)
{
    percent = std::clamp(percent, kSmallest, kLargest);
    if (percent == zoomPercent_) return;
    const int top = cursorForPosition({0, 2}).position(); // its first pixel may be the line before
    const bool atTop = verticalScrollBar()->value() == 0;
    const int anchor = textCursor().anchor(), position = textCursor().position();
    zoomPercent_ = percent;
    MakeDocument();
    QTextCursor cursor(document());
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    cursor.setPosition(top);
    const int shift = cursorRect(cursor).top();
    verticalScrollBar()->setValue(atTop ? 0 : verticalScrollBar()->value() + shift);
}

bool HelpPaneWidget::ZoomByKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        SetZoom(zoomPercent_ + kZoomStep);
        return true;
    case Qt::Key_Minus:
        SetZoom(zoomPercent_ - kZoomStep);
        return true;
    case Qt::Key_0:
        SetZoom(100);
        return true;
    default:
        return false;
    }
}

bool HelpPaneWidget::ScrollByKey(int key)
{
    static constexpr std::array<std::pair<int, QAbstractSlider::SliderAction>, 6> kVertical{{
        {Qt::Key_Up, QAbstractSlider::SliderSingleStepSub},
        {Qt::Key_Down, QAbstractSlider::SliderSingleStepAdd},
        {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
        {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
        {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
        {Qt::Key_End, QAbstractSlider::SliderToMaximum},
    }};
    for (const auto& [scrollKey, action] : kVertical) {
        if (key != scrollKey) continue;
        verticalScrollBar()->triggerAction(action);
        return true;
    }
    return false;
}

// The toolkit's own keyboard selection would take the plain arrows too, and blink a caret.
bool HelpPaneWidget::SelectByKey(const QKeyEvent& event)
{
    using enum QTextCursor::MoveOperation;
    static constexpr std::array<std::pair<QKeySequence::StandardKey, QTextCursor::MoveOperation>,
                                10>
        kMoves{{{QKeySequence::SelectNextChar, NextCharacter},
                {QKeySequence::SelectPreviousChar, PreviousCharacter},
                {QKeySequence::SelectNextWord, NextWord},
                {QKeySequence::SelectPreviousWord, PreviousWord},
                {QKeySequence::SelectNextLine, Down},
                {QKeySequence::SelectPreviousLine, Up},
                {QKeySequence::SelectStartOfLine, StartOfLine},
                {QKeySequence::SelectEndOfLine, EndOfLine},
                {QKeySequence::SelectStartOfDocument, Start},
                {QKeySequence::SelectEndOfDocument, End}}};
    for (const auto& [keys, move] : kMoves) {
        if (!event.matches(keys)) continue;
        QTextCursor cursor = textCursor();
        cursor.movePosition(move, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
        return true;
    }
    return false;
}

void HelpPaneWidget::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    const bool zoom = (held & Qt::ControlModifier) && !(held & Qt::AltModifier);
    if (zoom && ZoomByKey(event->key())) return;
    if (held == Qt::NoModifier && ScrollByKey(event->key())) return;
    if (SelectByKey(*event)) return;
    QTextBrowser::keyPressEvent(event);
}

void HelpPaneWidget::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    wheel_ += event->angleDelta().y();
    const int notches = wheel_ / kWheelNotch;
    wheel_ -= notches * kWheelNotch;
    SetZoom(zoomPercent_ + notches * kZoomStep);
    event->accept();
}

void HelpPaneWidget::Follow(const QUrl& link)
{
    emit linkClicked(link.toString(QUrl::FullyEncoded));
}

QVariant HelpPaneWidget::loadResource(int, const QUrl&)
{
    return {};
}

bool HelpPaneWidget::event(QEvent* event)
{
    const bool done = QTextBrowser::event(event);
    if (event->type() == QEvent::Paint) PaintOutline();
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    return done;
}

// A thin grey line; with the focus, the frame that all controls have.
void HelpPaneWidget::PaintOutline()
{
    if (hasFocus()) {
        DrawFocusFrame(*this);
        return;
    }
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - contentsRect());
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setClipRegion(QRegion(rect()) - rect().adjusted(1, 1, -1, -1));
    painter.fillRect(rect(), kFrameColour);
}

} // namespace selvane
