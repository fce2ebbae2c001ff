// Writes JSON: what goes from the program to the page.
#pragma once

#include "app/control_table.h"

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace selvane::web {

class Json
{
public:
    Json& Open(char bracket); // '{' or '['
    Json& Close(char bracket);
    Json& Key(std::string_view name); // the value follows

    Json& Value(std::string_view text); // UTF-8
    Json& Value(const char* text) { return Value(std::string_view(text)); }
    Json& Value(std::same_as<bool> auto flag) { return Raw(flag ? "true" : "false"); }
    Json& Value(int number) { return Raw(std::to_string(number)); }
    Json& Value(std::optional<Colour> colour); // [red, green, blue] or null
    Json& Value(const Place& place);           // [left, top, width, height]
    Json& Raw(std::string_view json);          // a value that is JSON already

    // Names and values in turn.
    template <typename Type, typename... Rest>
    Json& Members(std::string_view name, const Type& value, const Rest&... rest)
    {
        Key(name).Value(value);
        if constexpr (sizeof...(rest) > 0) Members(rest...);
        return *this;
    }
    template <typename... All> Json& Object(const All&... all)
    {
        return Open('{').Members(all...).Close('}');
    }

    const std::string& Text() const { return text_; }

private:
    void Separate();
    void Quote(std::string_view text);

    std::string text_;
};

} // namespace selvane::web
