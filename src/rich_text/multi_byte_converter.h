// Two-byte characters of the East Asian code pages, through the system's converter.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace selvane::rich_text {

class MultiByteConverter
{
public:
    MultiByteConverter();
    ~MultiByteConverter();
    MultiByteConverter(const MultiByteConverter&) = delete;
    MultiByteConverter& operator=(const MultiByteConverter&) = delete;

    // Pages 932, 936, 949, 950 and 1361.
    static bool Knows(std::int32_t page);

    // The character in UTF-8; empty if the page has none there or the system lacks the page.
    std::string Convert(std::int32_t page, std::uint8_t lead, std::uint8_t trail);

private:
    class Handle;
    std::map<std::int32_t, std::unique_ptr<Handle>> handles_; // opened when first asked for
};

} // namespace selvane::rich_text
