// QuickStyle: the look of the toolkit's own style, without the icons that it loads at start and
// hardly ever shows.
#pragma once

#include <QProxyStyle>

namespace selvane {

class QuickStyle : public QProxyStyle
{
public:
    QuickStyle() : QProxyStyle("Fusion") {}

    // The sign for what a menu bar has no room for is loaded when it is first painted: finding out
    // how to read it takes as long as showing a window.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
};

} // namespace selvane
