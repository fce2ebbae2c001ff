// Field instructions: HYPERLINK "page.html" \l "part", SYMBOL 97 \f "Symbol".
#pragma once

#include "rich_text/destination.h"

#include <optional>

namespace selvane::rich_text {

struct SymbolField
{
    std::int32_t code = 0; // 0 to 65535
    std::string font;      // empty: the font of the text
    bool isUnicode = false;
};

// \field: its instruction is what it is, its result what it shows.
struct Field
{
    ShortText instruction{16'384};
    std::size_t shownBefore = 0; // what the document had shown when the field began

    // What the first result found the instruction to link to: an index into Document::links, to
    // which it is added; -1: nothing.
    std::int32_t Link(Document& document);

    // What a SYMBOL field stands for; none: it is another field.
    std::optional<SymbolField> Symbol() const;

private:
    std::optional<std::int32_t> link_;
};

} // namespace selvane::rich_text
