// The upper halves of the single-byte code pages and the Symbol encoding, as Unicode.
#pragma once

#include <array>
#include <cstdint>

namespace selvane::rich_text {

inline constexpr char16_t kUndefined = 0xFFFD;

// What the bytes 80 to FF mean in a page, kUndefined where nothing; nullptr: no such table.
// Pages as Windows numbers them; 10000 and up are those of the Macintosh.
const char16_t* SingleByteTable(std::int32_t page);

// What a byte 20 to FF means in the Symbol font, kUndefined where nothing.
char16_t SymbolCharacter(std::uint8_t byte);

} // namespace selvane::rich_text
