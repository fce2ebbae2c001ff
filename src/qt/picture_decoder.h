// The pictures of a document, decoded no larger than they are shown.
#pragma once

#include <QImage>
#include <QSize>
#include <vector>

namespace selvane {

namespace rich_text {
struct Picture;
}

// The size to show a picture in, pixels: as the document gives it, at most so wide and
// 4096 high, its proportions kept.
QSize ShownSize(const rich_text::Picture& picture, double zoom, int widest);

// Decodes pictures within a budget of pixels for a whole document.
class PictureDecoder
{
public:
    // Null where the bytes are no picture of their kind, or the budget is spent.
    QImage Decode(const rich_text::Picture& picture, QSize shown);

private:
    qint64 pixelsLeft_ = 64'000'000;
};

// What stands for a picture that cannot be shown: an empty frame.
QImage EmptyFrame(QSize size);

} // namespace selvane
