#include "rich_text/character_sets.h"

#include "rich_text/code_page_tables.h"

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
    switch (page) {
    case 10001:
        return 932;
    case 10002:
        return 950;
    case 10003:
        return 949;
    case 10008:
    case 54936:
        return 936;
    case 10021:
        return 874;
    default:
        break;
    }
    const bool known =
        page == kUtf8Page || MultiByteConverter::Knows(page) || SingleByteTable(page) != nullptr;
    return known ? page : 0;
}

std::int32_t PageOfCharacterSet(std::int32_t characterSet)
{
    switch (characterSet) {
    case 0:
        return kWesternPage;
    case 77:
        return 10000;
    case 78:
    case 128:
        return 932;
    case 79:
    case 129:
        return 949;
    case 130:
        return 1361;
    case 80:
    case 134:
        return 936;
    case 81:
    case 136:
        return 950;
    case 85:
        return 10006;
    case 86:
        return 10081;
    case 88:
        return 10029;
    case 89:
        return 10007;
    case 161:
        return 1253;
    case 162:
        return 1254;
    case 163:
        return 1258;
    case 177:
        return 1255;
    case 178:
        return 1256;
    case 186:
        return 1257;
    case 204:
        return 1251;
    case 87:
    case 222:
        return 874;
    case 238:
        return 1250;
    case 254:
        return 437;
    case 255:
        return 850;
    default:
        return 0;
    }
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
    } else if (const char16_t* table = SingleByteTable(page)) {
        if (table[byte - 0x80] != kUndefined) AppendUtf8(text, table[byte - 0x80]);
    } else {
        FeedPair(byte, text);
    }
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
    const auto lead = static_cast<std::uint8_t>(pending_[0]);
    Reset();
    const std::string character = converter_.Convert(page_, lead, byte);
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
