#include "replay/crc32.h"

#include <array>

namespace selvane::replay {

namespace {

constexpr std::array<std::uint32_t, 256> MakeTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t rest = byte;
        for (int bit = 0; bit < 8; ++bit) rest = (rest & 1) ? 0xEDB88320u ^ (rest >> 1) : rest >> 1;
        table[byte] = rest;
    }
    return table;
}

constexpr std::array<std::uint32_t, 256> kTable = MakeTable();

} // namespace

std::uint32_t Crc32(std::uint32_t sum, std::string_view bytes)
{
    sum = ~sum;
    for (const char byte : bytes)
        sum = kTable[(sum ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (sum >> 8);
    return ~sum;
}

} // namespace selvane::replay
