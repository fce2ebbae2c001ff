#include "rich_text/tokens.h"

#include <algorithm>
#include <limits>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kLongestWord = 32;

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool EndsText(char c)
{
    return c == '\\' || c == '{' || c == '}' || c == '\n' || c == '\r' || c == '\t' || c == '\0';
}

} // namespace

int HexDigit(char character)
{
    if (IsDigit(character)) return character - '0';
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    return -1;
}

Token Tokens::Take(TokenKind kind, std::size_t length)
{
    Token token{kind, bytes_.substr(at_, length)};
    at_ += length;
    return token;
}

Token Tokens::Next()
{
    while (at_ < bytes_.size() && (Peek() == '\n' || Peek() == '\r' || Peek() == '\0')) ++at_;
    if (at_ >= bytes_.size()) {
        ranOut_ = true;
        return {};
    }
    switch (Peek()) {
    case '{':
        return Take(TokenKind::GroupStart, 1);
    case '}':
        return Take(TokenKind::GroupEnd, 1);
    case '\\':
        ++at_;
        return Control();
    case '\t':
        ++at_;
        return {TokenKind::Word, "tab"};
    default:
        break;
    }
    const auto first = bytes_.substr(at_).begin();
    const auto last = std::find_if(first, bytes_.end(), EndsText);
    return Take(TokenKind::Text, static_cast<std::size_t>(last - first));
}

Token Tokens::Control()
{
    if (at_ >= bytes_.size()) return Next();
    if (IsLetter(Peek())) return Word();
    if (Peek() == '\'') return HexByte();
    if (Peek() == '\n' || Peek() == '\r') return LineEnd();
    if (Peek() == '\t') return Next();
    return Take(TokenKind::Symbol, 1);
}

Token Tokens::LineEnd()
{
    const bool pair = bytes_.substr(at_).starts_with("\r\n");
    at_ += pair ? 2 : 1;
    return {TokenKind::Word, "par"};
}

Token Tokens::HexByte()
{
    ++at_;
    Token token{TokenKind::Byte, {}, true, -1};
    const int high = HexDigit(Peek());
    if (high < 0) return token;
    ++at_;
    const int low = HexDigit(Peek());
    if (low < 0) return token;
    ++at_;
    token.number = high * 16 + low;
    return token;
}

Token Tokens::Word()
{
    const std::size_t start = at_;
    while (IsLetter(Peek())) ++at_;
    Token token{TokenKind::Word, bytes_.substr(start, at_ - start)};
    if (token.text.size() > kLongestWord) token.text = {};
    const bool negative = Peek() == '-' && at_ + 1 < bytes_.size() && IsDigit(bytes_[at_ + 1]);
    if (negative) ++at_;
    if (IsDigit(Peek())) {
        token.hasNumber = true;
        token.number = Digits(negative);
    }
    if (Peek() == ' ') ++at_;
    return token.text == "bin" ? Binary(token.number) : token;
}

std::int32_t Tokens::Digits(bool negative)
{
    using Limits = std::numeric_limits<std::int32_t>;
    std::int64_t value = 0;
    for (; IsDigit(Peek()); ++at_)
        value = std::min<std::int64_t>(value * 10 + (Peek() - '0'), std::int64_t{1} << 32);
    if (negative) value = -value;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

Token Tokens::Binary(std::int32_t length)
{
    const auto wanted = static_cast<std::size_t>(std::max(length, 0));
    return Take(TokenKind::Binary, std::min(wanted, bytes_.size() - at_));
}

void Tokens::SkipGroup()
{
    std::size_t depth = 0;
    for (;;) {
        const Token token = Next();
        if (token.kind == TokenKind::End) return;
        if (token.kind == TokenKind::GroupStart) ++depth;
        if (token.kind != TokenKind::GroupEnd) continue;
        if (depth == 0) {
            --at_;
            return;
        }
        --depth;
    }
}

} // namespace selvane::rich_text
