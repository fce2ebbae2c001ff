// Cuts rich text into tokens. Knows the syntax and no meaning.
#pragma once

#include <cstdint>
#include <string_view>

namespace selvane::rich_text {

enum class TokenKind : std::uint8_t { GroupStart, GroupEnd, Word, Symbol, Byte, Text, Binary, End };

// Views into the input, which must outlive them.
struct Token
{
    TokenKind kind = TokenKind::End;
    std::string_view text;   // the word's name; the symbol; text; binary data
    bool hasNumber = false;  // a word with a parameter
    std::int32_t number = 0; // the parameter, saturated, 0 where there is none; a byte 0 to 255, or
                             // -1 if not hexadecimal

    // A switch without a parameter, or with any but 0, is on.
    bool IsOn() const { return !hasNumber || number != 0; }
};

// Line ends and NULs are no tokens; a backslash before a line end is the word "par", a raw tab
// the word "tab". The word "bin" comes as its data, cut to what is left.
class Tokens
{
public:
    explicit Tokens(std::string_view bytes) : bytes_(bytes) {}

    Token Next();

    // Goes on to the brace that closes the group we are in, or to the end; that brace is next.
    void SkipGroup();

    // True once tokens were asked for past the end.
    bool RanOut() const { return ranOut_; }

private:
    Token Take(TokenKind kind, std::size_t length);
    Token Control();
    Token Word();
    Token HexByte();
    char Peek() const { return at_ < bytes_.size() ? bytes_[at_] : '\0'; }

    std::string_view bytes_;
    std::size_t at_ = 0;
    bool ranOut_ = false;
};

} // namespace selvane::rich_text
