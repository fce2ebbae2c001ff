// Texts of which only the letters of ASCII have a case, whatever the locale.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace selvane::rich_text {

inline std::string Capitals(std::string_view text)
{
    std::string capitals(text);
    for (char& c : capitals)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return capitals;
}

inline std::string_view Trimmed(std::string_view text, std::string_view blanks)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1); // npos + 1 is 0
}

} // namespace selvane::rich_text
