#include "qt/application_icon.h"

#include <QDir>
#include <QFile>
#include <QPixmap>
#include <png.h>

// The resource may stand in a library; the toolkit wants this call outside every namespace.
static void LoadResource()
{
    Q_INIT_RESOURCE(icons);
}

namespace selvane {

namespace {

// The toolkit's own reader would load all decoders of the machine, and keep them.
QImage ReadPng(const QByteArray& bytes)
{
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    const auto size = static_cast<std::size_t>(bytes.size());
    if (!png_image_begin_read_from_memory(&png, bytes.constData(), size)) return {};
    png.format = PNG_FORMAT_RGBA;
    QImage image(static_cast<int>(png.width), static_cast<int>(png.height),
                 QImage::Format_RGBA8888);
    const int stride = static_cast<int>(image.bytesPerLine());
    if (!png_image_finish_read(&png, nullptr, image.bits(), stride, nullptr)) return {};
    return image;
}

} // namespace

QIcon ApplicationIcon()
{
    LoadResource();
    QIcon icon;
    for (const QString& name : QDir(":/icons").entryList()) {
        QFile file(":/icons/" + name);
        if (file.open(QIODevice::ReadOnly))
            icon.addPixmap(QPixmap::fromImage(ReadPng(file.readAll())));
    }
    return icon;
}

} // namespace selvane
