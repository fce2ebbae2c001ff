#include "replay/value_text.h"

#include "app/assertion.h"

#include <charconv>
#include <system_error>

namespace selvane::replay {

namespace {

void Append(std::string& text, double value, std::chars_format format, int precision)
{
    char digits[384]; // the largest double has 309 digits before its point
    const auto [end, error] =
        std::to_chars(digits, digits + sizeof digits, value, format, precision);
    SELVANE_ASSERT(error == std::errc{});
    text.append(digits, end);
}

} // namespace

void AppendNineDigits(std::string& text, double value)
{
    Append(text, value == 0 ? 0.0 : value, std::chars_format::general, 9);
}

void AppendThreeDecimals(std::string& text, double value)
{
    Append(text, value, std::chars_format::fixed, 3);
}

std::string NumberText(double value)
{
    std::string text;
    AppendNineDigits(text, value);
    return text;
}

void AppendColour(std::string& text, const std::optional<Colour>& colour)
{
    if (!colour) {
        text += '-';
        return;
    }
    text += std::to_string(colour->red);
    text += ',';
    text += std::to_string(colour->green);
    text += ',';
    text += std::to_string(colour->blue);
}

std::string ColourText(const std::optional<Colour>& colour)
{
    std::string text;
    AppendColour(text, colour);
    return text;
}

std::string Escaped(std::string_view text)
{
    std::string escaped;
    escaped.reserve(text.size());
    for (const char character : text) switch (character) {
        case '\\':
            escaped += "\\\\";
            break;
        case '\n':
            escaped += "\\n";
            break;
        case '\r':
            escaped += "\\r";
            break;
        default:
            escaped += character;
        }
    return escaped;
}

} // namespace selvane::replay
