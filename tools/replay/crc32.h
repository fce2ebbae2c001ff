// CRC-32 as zlib, PNG and gzip use it: polynomial 0xEDB88320, bits reflected.
#pragma once

#include <cstdint>
#include <string_view>

namespace selvane::replay {

// Goes on from the sum of what came before; 0 to begin.
std::uint32_t Crc32(std::uint32_t sum, std::string_view bytes);

} // namespace selvane::replay
