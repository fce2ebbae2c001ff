// A document as HTML, for a pane in a page of a browser.
#pragma once

#include "rich_text/document.h"

#include <functional>
#include <string>
#include <string_view>

namespace selvane::rich_text {

struct HtmlLink
{
    enum class Kind { None, Document, Web } kind = Kind::None;
    std::string address; // of a web or mail link: http:, https: or mailto:, all others are none
};

// Decides where a link leads; its argument is the link as the document has it.
using LinkRule = std::function<HtmlLink(std::string_view link)>;

// The document as one <div>, to be put into the pane as it is. No markup of the document's gets
// into it: text is escaped, all attributes are made of numbers, but for the address of a web link,
// which opens in a tab of its own. A link to a document is <a href="#" data-link="N">, N being its
// index in Document::links. Styles stand in style attributes, sizes in pixels. What would go past
// 16 MB, not counting pictures, is left out.
std::string ToHtml(const Document& document, const LinkRule& linkRule);

} // namespace selvane::rich_text
