#include "rich_text/code_pages.h"

#include "rich_text/code_page_tables.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace selvane::rich_text {

namespace {

struct PageRow
{
    std::int32_t number, page;
};

// Character set numbers of fonts; 77 to 89 are the Macintosh's.
constexpr PageRow kCharacterSets[] = {
    {0, kWesternPage}, {77, 10000}, {78, 932},   {79, 949},   {80, 936},   {81, 950},   {85, 10006},
    {86, 10081},       {87, 874},   {88, 10029}, {89, 10007}, {128, 932},  {129, 949},  {130, 1361},
    {134, 936},        {136, 950},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
    {186, 1257},       {204, 1251}, {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

// Pages read with another: those of the Macintosh, and GB 18030.
constexpr PageRow kAliases[] = {{10001, 932}, {10002, 950}, {10003, 949},
                                {10008, 936}, {10021, 874}, {54936, 936}};

// 0: none of the rows.
template <std::size_t N> std::int32_t PageIn(const PageRow (&rows)[N], std::int32_t number)
{
    const auto* row = std::ranges::find(rows, number, &PageRow::number);
    return row == std::end(rows) ? 0 : row->page;
}

constexpr std::int32_t kPairPages[] = {932, 936, 949, 950, 1361};
constexpr std::int32_t kSinglePages[] = {437,   850,   852,   866,   874,  1250, 1251,
                                         1252,  1253,  1254,  1255,  1256, 1257, 1258,
                                         10000, 10006, 10007, 10029, 10081};

template <std::size_t N> bool IsIn(const std::int32_t (&pages)[N], std::int32_t page)
{
    return std::ranges::find(pages, page) != std::end(pages);
}

// What a byte over 7F means by itself in a page of two-byte characters; 0: it is a first byte.
char32_t SingleInPair(std::int32_t page, std::uint8_t byte)
{
    if (page == 932 && byte >= 0xA1 && byte <= 0xDF) return 0xFF61u + byte - 0xA1u; // half-width
    if (page == 936 && byte == 0x80) return 0x20AC;
    if (page == 932 && byte == 0xA0) return 0xA0;
    return 0;
}

} // namespace

std::int32_t KnownPage(std::int32_t page)
{
    if (const std::int32_t other = PageIn(kAliases, page)) return other;
    return page == kUtf8Page || IsIn(kSinglePages, page) || IsIn(kPairPages, page) ? page : 0;
}

std::int32_t PageOfCharacterSet(std::int32_t characterSet)
{
    return PageIn(kCharacterSets, characterSet);
}

void AppendUtf8(std::string& text, char32_t character)
{
    static constexpr char32_t kLeads[] = {0xC0, 0xE0, 0xF0};
    if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) return;
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) return put(character);
    int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    put(kLeads[following - 1] | character >> 6 * following);
    while (following-- > 0) put(0x80 | (character >> 6 * following & 0x3F));
}

void ByteDecoder::Feed(std::uint8_t byte, std::int32_t page, std::string& text)
{
    if (page != page_) Reset();
    page_ = page;
    if (byte < 0x80 && !IsPending()) {
        text += static_cast<char>(byte);
    } else if (page == kUtf8Page) {
        FeedUtf8(byte, text);
    } else if (IsIn(kPairPages, page)) {
        FeedPair(byte, text);
    } else {
        text += UpperHalf(page)[byte - 0x80];
    }
}

const ByteDecoder::Characters& ByteDecoder::UpperHalf(std::int32_t page)
{
    const auto [found, isNew] = upperHalves_.try_emplace(page);
    Characters& characters = found->second;
    if (!isNew) return characters;
    const char16_t* table = UpperHalfOf(page);
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const char byte = static_cast<char>(0x80 + i);
        if (!table)
            characters[i] = converter_.Convert(page, {&byte, 1});
        else if (table[i] != kUndefined)
            AppendUtf8(characters[i], table[i]);
    }
    return characters;
}

void ByteDecoder::FeedPair(std::uint8_t byte, std::string& text)
{
    if (!IsPending()) {
        if (const char32_t single = SingleInPair(page_, byte))
            AppendUtf8(text, single);
        else if (byte > 0x80 && byte < 0xFF)
            pending_ = static_cast<char>(byte);
        return;
    }
    const char pair[] = {pending_[0], static_cast<char>(byte)};
    Reset();
    const std::string character = converter_.Convert(page_, {pair, 2});
    text += character;
    // A plain character after a first byte that does not go with it stands for itself.
    if (character.empty() && byte < 0x80) text += static_cast<char>(byte);
}

// A character that is overlong, a surrogate or too big is dropped when its last byte has come.
void ByteDecoder::FeedUtf8(std::uint8_t byte, std::string& text)
{
    static constexpr char32_t kLeast[] = {0x80, 0x800, 0x10000}; // by number of bytes, from two on
    const int ones = std::countl_one(byte); // 0: a plain character; 1: goes on; else how many bytes
    if (ones != 1) {
        Reset();
        if (ones == 0) text += static_cast<char>(byte);
        if (ones >= 2 && ones <= 4) pending_ = static_cast<char>(byte);
        return;
    }
    if (!IsPending()) return;
    pending_ += static_cast<char>(byte);
    const auto lead = static_cast<std::uint8_t>(pending_[0]);
    const auto length = static_cast<std::size_t>(std::countl_one(lead));
    if (pending_.size() < length) return;
    char32_t character = lead & (0x7Fu >> length);
    for (const char next : pending_.substr(1))
        character = character << 6 | (static_cast<std::uint8_t>(next) & 0x3Fu);
    if (character >= kLeast[length - 2]) AppendUtf8(text, character);
    Reset();
}

} // namespace selvane::rich_text
