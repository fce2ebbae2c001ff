// The window's texts: captions and read-outs, and links that can be pressed.
#pragma once

#include "app/control_table.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTextLayout>
#include <optional>

namespace selvane {

// A text at its place. Where the text needs more room than the place has, it grows away from the
// side that it is aligned to. Where that would take it over its neighbour it ends with dots, and
// the tool tip has all of it.
class CaptionLabel : public QLabel
{
public:
    CaptionLabel(const LabelRow& row, QWidget* parent);

    void SetCaption(const QString& caption);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Fit();
    qreal LayOut(const QString& text);
    bool IsElided() const { return laidOut_.text() != text(); }

    const Place place_;
    const std::optional<int> room_; // pixels
    const Alignment alignment_;
    QTextLayout laidOut_; // measured and painted, as every tick changes a dozen read-outs
};

// A text that looks like a link and is pressed by click, Space or Enter. A screen reader calls it a
// link.
class LinkLabel : public QAbstractButton
{
    Q_OBJECT

public:
    // A place of no size fits the text.
    LinkLabel(const QString& text, const Place& place, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& at) const override;
};

} // namespace selvane
