// Bytes of the many character sets of rich text, as UTF-8.
#pragma once

#include "rich_text/code_page_converter.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>

namespace selvane::rich_text {

inline constexpr std::int32_t kWesternPage = 1252;
inline constexpr std::int32_t kUtf8Page = 65001;

// The page to read a numbered code page with (932 for the Macintosh's 10001); 0: unknown.
std::int32_t KnownPage(std::int32_t page);

// The code page of a font's character set number; 0: that of the document.
std::int32_t PageOfCharacterSet(std::int32_t characterSet);

inline constexpr std::int32_t kSymbolCharacterSet = 2;

// Surrogates and what lies past U+10FFFF append nothing.
void AppendUtf8(std::string& text, char32_t character);

// Turns bytes into text. Keeps the first bytes of a character until its last has come.
class ByteDecoder
{
public:
    // Appends what the byte completes, if anything. Undecodable bytes append nothing; text
    // is valid UTF-8 whatever comes. The page must be one that KnownPage gave.
    void Feed(std::uint8_t byte, std::int32_t page, std::string& text);

    bool IsPending() const { return !pending_.empty(); }
    void Reset() { pending_.clear(); }

private:
    void FeedPair(std::uint8_t byte, std::string& text);
    void FeedUtf8(std::uint8_t byte, std::string& text);
    using Characters = std::array<std::string, 0x80>;
    const Characters& UpperHalf(std::int32_t page); // the bytes 80 to FF of a page

    CodePageConverter converter_;
    std::map<std::int32_t, Characters> upperHalves_; // converted when first asked for
    std::string pending_;
    std::int32_t page_ = kWesternPage;
};

} // namespace selvane::rich_text
