// The pages that converters of character sets lack, or have otherwise: the upper halves of some of
// the Macintosh's, and the Symbol encoding, as Unicode.
#pragma once

#include <cstdint>

namespace selvane::rich_text {

inline constexpr char16_t kUndefined = 0xFFFD;

// What the bytes 80 to FF mean in a page, kUndefined where nothing; nullptr: no such table.
const char16_t* UpperHalfOf(std::int32_t page);

// What a byte 20 to FF means in the Symbol font, kUndefined where nothing.
char16_t SymbolCharacter(std::uint8_t byte);

} // namespace selvane::rich_text
