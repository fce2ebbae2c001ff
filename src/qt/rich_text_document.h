// Makes the toolkit's document of the core's rich text.
// A twip is 1/15 of a pixel, a half-point 2/3 of one; both times the zoom.
#pragma once

#include "rich_text/rich_text.h"

#include <QString>
#include <QTextDocument>
#include <memory>

namespace selvane {

// Where a link of a document leads. A link that leads nowhere is shown as plain text.
struct LinkTarget
{
    enum class Kind { None, Document, Web } kind = Kind::None;
    QString address; // bare name of a document of the folder, or a web address (http, https)
};
LinkTarget LinkTargetOf(const QString& link);

// The zoom multiplies all sizes, above 0. The font is that of text which names none. Pictures are
// held to the width, in pixels, that a pane has room for; one that cannot be decoded, or that goes
// past 64 million pixels in all, is an empty frame.
std::unique_ptr<QTextDocument> MakeTextDocument(const RichText& text, const QFont& font,
                                                double zoom, int pictureWidth);

} // namespace selvane
