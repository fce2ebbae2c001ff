#include "qt/text_masks.h"

#include "qt/appearance.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace selvane {

raster::Mask QtTextMasks::MaskOf(std::string_view text, double scale)
{
    constexpr qsizetype kMost = 64;
    if (scale != scale_ || known_.size() >= kMost) known_.clear();
    scale_ = scale;
    const QByteArray key(text.data(), static_cast<qsizetype>(text.size()));
    auto found = known_.constFind(key);
    if (found == known_.cend()) found = known_.insert(key, Render(QString::fromUtf8(key), scale));
    return {found->pixels, found->width, found->height};
}

QtTextMasks::Coverage QtTextMasks::Render(const QString& text, double scale)
{
    const auto pixels = [scale](double length) {
        return std::max(1, static_cast<int>(std::ceil(length * scale)));
    };
    const QFont font = FontOf(9, Weight::Bold);
    const QFontMetricsF metrics(font);
    Coverage mask;
    mask.width = pixels(metrics.horizontalAdvance(text) + 2);
    mask.height = pixels(metrics.height());
    QImage image(mask.width, mask.height, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(0, metrics.ascent()), text);
    painter.end();
    for (int row = 0; row < mask.height; ++row) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        for (int at = 0; at < mask.width; ++at)
            mask.pixels.push_back(static_cast<std::uint8_t>(qAlpha(line[at])));
    }
    return mask;
}

} // namespace selvane
