#include "web/json.h"

namespace selvane::web {

Json& Json::Open(char bracket)
{
    Separate();
    text_ += bracket;
    return *this;
}

Json& Json::Close(char bracket)
{
    text_ += bracket;
    return *this;
}

Json& Json::Key(std::string_view name)
{
    Separate();
    Quote(name);
    text_ += ':';
    return *this;
}

Json& Json::Value(std::string_view text)
{
    Separate();
    Quote(text);
    return *this;
}

Json& Json::Value(std::optional<Colour> colour)
{
    if (!colour) return Raw("null");
    return Open('[').Value(colour->red).Value(colour->green).Value(colour->blue).Close(']');
}

Json& Json::Value(const Place& place)
{
    Open('[').Value(place.left).Value(place.top);
    return Value(place.width).Value(place.height).Close(']');
}

Json& Json::Raw(std::string_view json)
{
    Separate();
    text_ += json;
    return *this;
}

// A comma between two values or members.
void Json::Separate()
{
    constexpr std::string_view kNoValueBefore = "{[:,";
    if (!text_.empty() && kNoValueBefore.find(text_.back()) == std::string_view::npos) text_ += ',';
}

void Json::Quote(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    text_ += '"';
    for (const char sign : text) {
        const auto code = static_cast<unsigned char>(sign);
        if (code < 0x20)
            text_ += {'\\', 'u', '0', '0', kDigits[code / 16U], kDigits[code % 16U]};
        else if (sign == '"' || sign == '\\')
            text_ += {'\\', sign};
        else
            text_ += sign;
    }
    text_ += '"';
}

} // namespace selvane::web
