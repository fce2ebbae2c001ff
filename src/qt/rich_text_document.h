// Makes the toolkit's document of the core's rich text.
// A twip is 1/15 of a pixel, a half-point 2/3 of one; both times the zoom.
#pragma once

#include "rich_text/document.h"

#include <QString>
#include <QTextDocument>
#include <memory>

namespace selvane {

// The zoom multiplies all sizes, above 0. The font is that of text which names none. Pictures are
// held to the width, in pixels, that a pane has room for; one that cannot be decoded, or that goes
// past 64 million pixels in all, is an empty frame.
std::unique_ptr<QTextDocument> MakeTextDocument(const rich_text::Document& text, const QFont& font,
                                                double zoom, int pictureWidth);

} // namespace selvane
