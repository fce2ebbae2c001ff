#include "rich_text/tokens.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kLongestWord = 32;

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool EndsText(char c)
{
    return c == '\\' || c == '{' || c == '}' || c == '\n' || c == '\r' || c == '\t' || c == '\0';
}

} // namespace

Token Tokens::Take(TokenKind kind, std::size_t length)
{
    const Token token{kind, bytes_.substr(at_, length)};
    at_ += token.text.size();
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
    const std::string_view rest = bytes_.substr(at_);
    const auto length = std::find_if(rest.begin(), rest.end(), EndsText) - rest.begin();
    return Take(TokenKind::Text, static_cast<std::size_t>(length));
}

Token Tokens::Control()
{
    if (at_ >= bytes_.size() || Peek() == '\t') return Next();
    if (IsLetter(Peek())) return Word();
    if (Peek() == '\'') return HexByte();
    const Token symbol = Take(TokenKind::Symbol, 1);
    const bool isLineEnd = symbol.text == "\n" || symbol.text == "\r"; // of a pair, the first
    return isLineEnd ? Token{TokenKind::Word, "par"} : symbol;
}

Token Tokens::HexByte()
{
    ++at_;
    const std::string_view digits = bytes_.substr(at_, 2);
    std::uint8_t byte = 0;
    const char* const end =
        std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16).ptr;
    const auto read = static_cast<std::size_t>(end - digits.data());
    at_ += read;
    return {TokenKind::Byte, {}, true, read == 2 ? byte : -1};
}

Token Tokens::Word()
{
    using Limits = std::numeric_limits<std::int32_t>;
    const char* const first = bytes_.data() + at_;
    const char* const last = bytes_.data() + bytes_.size();
    const char* const number = std::find_if_not(first, last, IsLetter);
    Token token = Take(TokenKind::Word, static_cast<std::size_t>(number - first));
    if (token.text.size() > kLongestWord) token.text = {};
    const auto [end, error] = std::from_chars(number, last, token.number);
    token.hasNumber = end != number;
    if (error == std::errc::result_out_of_range)
        token.number = *number == '-' ? Limits::min() : Limits::max();
    at_ += static_cast<std::size_t>(end - number);
    if (Peek() == ' ') ++at_;
    if (token.text == "bin")
        token = Take(TokenKind::Binary, static_cast<std::size_t>(std::max(token.number, 0)));
    return token;
}

void Tokens::SkipGroup()
{
    for (std::size_t depth = 1; depth > 0;) {
        const TokenKind kind = Next().kind;
        if (kind == TokenKind::End) return;
        if (kind == TokenKind::GroupStart) ++depth;
        if (kind == TokenKind::GroupEnd) --depth;
    }
    --at_;
}

} // namespace selvane::rich_text
