#include "rich_text/text_decoder.h"

#include "rich_text/code_page_tables.h"

#include <algorithm>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr char32_t kBullet = 0x2022;
constexpr char32_t kHighSurrogate = 0xD800; // the first of 1024 of them
constexpr char32_t kLowSurrogate = 0xDC00;

bool IsPlain(char c)
{
    return c >= 0x20 && c < 0x7F;
}

char32_t UnitOf(std::int32_t number)
{
    const std::int32_t unit = number < 0 && number >= -0x8000 ? number + 0x10000 : number;
    return unit < 0 || unit > 0x10FFFF ? U'\0' : static_cast<char32_t>(unit);
}

} // namespace

void TextDecoder::Reset()
{
    decoder_.Reset();
    highSurrogate_ = 0;
}

std::string_view TextDecoder::Bytes(std::string_view bytes, const Encoding& encoding)
{
    const bool mayBePlain = encoding.glyphs == Glyphs::Text && !decoder_.IsPending();
    const auto end = std::find_if_not(bytes.begin(), bytes.end(), IsPlain);
    const auto plain = mayBePlain ? static_cast<std::size_t>(end - bytes.begin()) : 0;
    highSurrogate_ = 0;
    text_ = bytes.substr(0, plain);
    for (const char byte : bytes.substr(plain)) Byte(static_cast<std::uint8_t>(byte), encoding);
    return text_;
}

void TextDecoder::Byte(std::uint8_t byte, const Encoding& encoding)
{
    if (byte == '\t' || (encoding.isLabelTemplate && byte < 0x20)) {
        text_ += static_cast<char>(byte);
    } else if (byte < 0x20 || byte == 0x7F) {
        decoder_.Reset();
    } else if (encoding.glyphs == Glyphs::Symbol) {
        if (SymbolCharacter(byte) != kUndefined) AppendUtf8(text_, SymbolCharacter(byte));
    } else if (encoding.glyphs == Glyphs::Ornaments) {
        AppendUtf8(text_, byte == ' ' ? U' ' : kBullet);
    } else {
        decoder_.Feed(byte, encoding.page, text_);
    }
}

std::string_view TextDecoder::Character(char32_t character)
{
    Reset();
    text_.clear();
    AppendUtf8(text_, character);
    return text_;
}

std::string_view TextDecoder::Unicode(std::int32_t number, const Encoding& encoding)
{
    const char32_t unit = UnitOf(number);
    const char32_t high = std::exchange(highSurrogate_, 0);
    if (unit < kHighSurrogate || unit >= kLowSurrogate + 0x400) return CodePoint(unit, encoding);
    if (unit < kLowSurrogate) {
        decoder_.Reset();
        highSurrogate_ = unit;
    }
    if (unit < kLowSurrogate || high == 0) return {};
    return CodePoint(0x10000 + ((high - kHighSurrogate) << 10) + (unit - kLowSurrogate), encoding);
}

// Symbol fonts have their glyphs at F020 to F0FF; control characters that Unicode text may have
// become the words they stand for.
std::string_view TextDecoder::CodePoint(char32_t character, const Encoding& encoding)
{
    const bool isGlyph = character >= 0xF020 && character <= 0xF0FF;
    if (isGlyph && encoding.isLabelTemplate) return Character(kBullet);
    if (isGlyph && encoding.glyphs != Glyphs::Text) {
        const char byte = static_cast<char>(character & 0xFF);
        return Bytes({&byte, 1}, encoding);
    }
    if (character == 0x0B || character == 0x2028 || character == 0x2029) return Character('\n');
    const bool isText = (character >= 0x20 && character != 0x7F && character < 0xFFFE) ||
                        character == '\t' || character > 0xFFFF;
    return isText ? Character(character) : std::string_view();
}

} // namespace selvane::rich_text
