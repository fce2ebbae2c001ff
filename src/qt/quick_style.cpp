#include "qt/quick_style.h"

#include <QIconEngine>
#include <QPainter>

namespace selvane {

namespace {

class LateIcon : public QIconEngine
{
public:
    LateIcon(const QStyle& style, QStyle::StandardPixmap which) : style_(style), which_(which) {}

    void paint(QPainter* painter, const QRect& box, QIcon::Mode mode, QIcon::State state) override
    {
        Loaded().paint(painter, box, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Loaded().pixmap(size, 1, mode, state);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override
    {
        return Loaded().pixmap(size / scale, scale, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Loaded().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return Loaded().availableSizes(mode, state);
    }
    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new LateIcon(*this); }

private:
    const QIcon& Loaded()
    {
        if (icon_.isNull()) icon_ = style_.standardIcon(which_);
        return icon_;
    }

    const QStyle& style_;
    const QStyle::StandardPixmap which_;
    QIcon icon_;
};

} // namespace

QIcon QuickStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                               const QWidget* widget) const
{
    if (which != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(which, option, widget);
    return QIcon(new LateIcon(*baseStyle(), which));
}

} // namespace selvane
