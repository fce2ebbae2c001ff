#include "qt/picture_decoder.h"

#include "rich_text/layout.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <algorithm>

namespace selvane {
namespace {

constexpr int kHighest = 4096, kMostScreenDensity = 3; // pixels; image dots per shown pixel

} // namespace

QSize ShownSize(const rich_text::Picture& picture, double zoom, int widest)
{
    const rich_text::PixelSize whole = rich_text::ShownSize(picture);
    QSizeF size(whole.width, whole.height);
    size *= zoom;
    const QSizeF most(std::max(widest, 1), kHighest);
    if (size.width() > most.width() || size.height() > most.height())
        size.scale(most, Qt::KeepAspectRatio);
    return size.toSize().expandedTo({1, 1});
}

QImage PictureDecoder::Decode(const rich_text::Picture& picture, QSize shown)
{
    if (picture.kind == rich_text::PictureKind::Placeholder) return {};
    QByteArray bytes =
        QByteArray::fromRawData(picture.bytes.data(), static_cast<qsizetype>(picture.bytes.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, picture.kind == rich_text::PictureKind::Png ? "png" : "jpeg");
    reader.setAutoDetectImageFormat(false);
    const QSize whole = reader.size();
    if (!whole.isValid() || qint64{whole.width()} * whole.height() > rich_text::kMaxPicturePixels)
        return {};
    const QSize wanted = whole.boundedTo(shown * kMostScreenDensity);
    const qint64 pixels = qint64{wanted.width()} * wanted.height();
    if (pixels > pixelsLeft_) return {};
    pixelsLeft_ -= pixels;
    if (wanted != whole) reader.setScaledSize(wanted);
    return reader.read();
}

QImage EmptyFrame(QSize size)
{
    QImage frame(size, QImage::Format_ARGB32_Premultiplied);
    frame.fill(QColor(240, 240, 240));
    QPainter painter(&frame);
    painter.setPen(QColor(160, 160, 160));
    painter.drawRect(frame.rect().adjusted(0, 0, -1, -1));
    return frame;
}

} // namespace selvane
