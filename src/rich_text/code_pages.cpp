#include "rich_text/code_pages.h"

#include "rich_text/code_page_tables.h"

#include <algorithm>
#include <iterator>

namespace selvane::rich_text {

namespace {

// The number of bytes of the UTF-8 character that begins with this one; 0: none does.
std::size_t Utf8Length(std::uint8_t lead)
{
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

// True for a second byte that would make the character overlong, a surrogate or too big.
bool IsBadSecond(std::uint8_t lead, std::uint8_t second)
{
    return (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
           (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
}

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
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto follow = [&](int shift) { put(0x80 | ((character >> shift) & 0x3F)); };
    if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) return;
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        follow(0);
    } else if (character < 0x10000) {
        put(0xE0 | (character >> 12));
        follow(6);
        follow(0);
    } else {
        put(0xF0 | (character >> 18));
        follow(12);
        follow(6);
        follow(0);
    }
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

void ByteDecoder::FeedUtf8(std::uint8_t byte, std::string& text)
{
    const bool follows = (byte & 0xC0) == 0x80;
    const bool bad =
        !follows || !IsPending() ||
        (pending_.size() == 1 && IsBadSecond(static_cast<std::uint8_t>(pending_[0]), byte));
    if (bad) {
        Reset();
        if (byte < 0x80)
            text += static_cast<char>(byte);
        else if (Utf8Length(byte) > 0)
            pending_ = static_cast<char>(byte);
        return;
    }
    pending_ += static_cast<char>(byte);
    if (pending_.size() < Utf8Length(static_cast<std::uint8_t>(pending_[0]))) return;
    text += pending_;
    Reset();
}

} // namespace selvane::rich_text
