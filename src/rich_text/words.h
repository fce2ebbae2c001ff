// The row of a control word. Only the interpreter's own files include this.
#pragma once

#include "rich_text/interpreter.h"

#include <algorithm>

namespace selvane::rich_text {

struct RichTextInterpreter::WordRow
{
    std::string_view name;
    Handler handler;
    std::int32_t argument = 0;
    bool isDestination = false; // says what its group is, and so may follow \*
};

inline constexpr std::int32_t kLongestLength = 31680; // twips, 22 inches, the largest page

// A switch without a parameter, or with any but 0, is on.
inline bool IsOn(const Token& token)
{
    return !token.hasNumber || token.number != 0;
}

// The parameter, or 0 where there is none.
inline std::int32_t NumberOf(const Token& token)
{
    return token.hasNumber ? token.number : 0;
}

template <auto Member> void RichTextInterpreter::Toggle(const Token& token, std::int32_t)
{
    state_.character.*Member = IsOn(token);
}

template <auto Member> void RichTextInterpreter::Length(const Token& token, std::int32_t least)
{
    state_.paragraph.*Member = std::clamp(NumberOf(token), least, kLongestLength);
}

template <auto Member> void RichTextInterpreter::Flag(const Token& token, std::int32_t value)
{
    state_.paragraph.*Member = value != 0 && IsOn(token);
}

template <auto Member> void RichTextInterpreter::PictureLength(const Token& token, std::int32_t)
{
    picture_.*Member = NumberOf(token);
}

} // namespace selvane::rich_text
