// Field instructions: HYPERLINK "page.html" \l "part", SYMBOL 97 \f "Symbol".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace selvane::rich_text {

// The target of a HYPERLINK, "#part" if only a part is named; empty if it is none.
std::string LinkTarget(std::string_view instruction);

struct SymbolField
{
    std::int32_t code = 0; // 0 to 65535
    std::string font;      // empty: the font of the text
    bool isUnicode = false;
};

std::optional<SymbolField> ParseSymbolField(std::string_view instruction);

} // namespace selvane::rich_text
